#pragma once

#include "cls_Class.h"

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
