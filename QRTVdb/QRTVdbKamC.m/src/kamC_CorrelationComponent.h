#pragma once

#include "cls_Class.h"
#include "omu_Composite.h"

/// One part of the correlation of a random load: how it is correlated, by which power spectral density.
class OVR_EXPORT kamC_CorrelationComponent : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(kamC_CorrelationComponent, 0x244001C, 1642)
    OMU_ENUM(CorrelationApproachEnm, CORRELATED = 0, UNCORRELATED = 1, USER = 3, MOVING_NOISE = 2)

    CLS_ATTRIBUTE(CorrelationApproachEnm, approach, CorrelationApproachEnm::CORRELATED)
    /// Name of the power spectral density.
    CLS_ATTRIBUTE(cow_String, psd)
    CLS_ATTRIBUTE_AS(cls_xp1DArrayListDouble, dataList, "data")

    /// The approach, the name, then the count of data that goes with the approach.
    void AssertValid() const;
    CLS_END
};

/// Takes a component from the next value of the tuple: approach, name, data.
OVR_EXPORT void omu_Get(omu_PrimTuple& tuple, kamC_CorrelationComponent& component);
/// The component as a tuple, owned by the caller; the approach is its plain number.
OVR_EXPORT omu_Primitive* omu_ReturnPrim(const kamC_CorrelationComponent& component);
