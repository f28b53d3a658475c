#include "kflC_Chebyshev1Filter.h"

#include "kflC_assert.h"
#include "kflC_rules.h"

CLS_IMPLEMENT(kflC_Chebyshev1Filter)

void kflC_Chebyshev1Filter::AssertValid() const
{
    kflC_Filter::AssertValid();
    kflC_AssertCutoffFrequency(*this);
    kflC_Assert(rippleFactor > 0.0, 5);
    kflC_AssertOrder(*this);
}
