#include "kflC_rules.h"

#include "kflC_assert.h"

void kflC_AssertCutoffFrequency(const kflC_Filter& filter)
{
    kflC_Assert(filter.cutoffFrequency > 0.0, 3);
}

void kflC_AssertOrder(const kflC_Filter& filter)
{
    kflC_Assert(1 <= filter.order && filter.order <= 20, 4);
}
