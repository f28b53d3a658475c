#include "kflC_Filter.h"

#include "kflC_assert.h"

CLS_IMPLEMENT(kflC_Filter)

void kflC_Filter::AssertValid() const
{
    const bool hasLimit = limit != cls_UnsetDouble;
    kflC_Assert(operation != OperationEnm::ABS || limit > 0.0, 0);
    kflC_Assert(!hasLimit || operation != OperationEnm::NONE, 1);
    kflC_Assert(!halt || hasLimit, 2);
    kflC_Assert(operation != OperationEnm::NONE || invariant == InvariantEnm::NONE, 13);
}
