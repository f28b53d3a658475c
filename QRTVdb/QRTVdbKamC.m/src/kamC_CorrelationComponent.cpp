#include "kamC_CorrelationComponent.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_CorrelationComponent)

void kamC_CorrelationComponent::AssertValid() const
{
    using enum CorrelationApproachEnm;
    kamC_Assert(approach != MOVING_NOISE, 26);
    kamC_Assert(!psd.IsEmpty(), 27);
    if (approach == USER)
    {
        kamC_Assert(dataList.Count() == 0, 28);
        return;
    }
    if (approach == CORRELATED || approach == UNCORRELATED)
    {
        kamC_Assert(dataList.Count() >= 1, 30);
        kamC_Assert(dataList.Count() < 3, 31);
    }
    // Stands ready for the day when the refusal above goes.
    if (approach == MOVING_NOISE)
    {
        kamC_Assert(dataList.Count() >= 1, 30);
        kamC_Assert(dataList.Count() < 4, 29);
    }
}

void omu_Get(omu_PrimTuple& tuple, kamC_CorrelationComponent& component)
{
    omu_GetFields(tuple, component.approach, component.psd, component.dataList);
}

omu_Primitive* omu_ReturnPrim(const kamC_CorrelationComponent& component)
{
    return omu_ReturnFields(component.approach, component.psd, component.dataList);
}
