#include "kflC_OperatorFilter.h"

#include "kflC_assert.h"

CLS_IMPLEMENT(kflC_OperatorFilter)

void kflC_OperatorFilter::AssertValid() const
{
    kflC_Filter::AssertValid();
    kflC_Assert(cutoffFrequency == 0.0, 10);
    kflC_Assert(order == 2, 11);
    kflC_Assert(operation != OperationEnm::NONE, 12);
}
