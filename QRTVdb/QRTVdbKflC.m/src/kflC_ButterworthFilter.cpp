#include "kflC_ButterworthFilter.h"

#include "kflC_rules.h"

CLS_IMPLEMENT(kflC_ButterworthFilter)

void kflC_ButterworthFilter::AssertValid() const
{
    kflC_Filter::AssertValid();
    kflC_AssertCutoffFrequency(*this);
    kflC_AssertOrder(*this);
}
