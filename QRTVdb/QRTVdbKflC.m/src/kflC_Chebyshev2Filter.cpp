#include "kflC_Chebyshev2Filter.h"

#include "kflC_assert.h"
#include "kflC_rules.h"

CLS_IMPLEMENT(kflC_Chebyshev2Filter)

void kflC_Chebyshev2Filter::AssertValid() const
{
    kflC_Filter::AssertValid();
    kflC_AssertCutoffFrequency(*this);
    kflC_Assert(rippleFactor > 0.0 && rippleFactor <= 1.0, 6);
    kflC_AssertOrder(*this);
}
