#pragma once

#include "kbpC_BeamProfile.h"

/// Angle of two legs.
class OVR_EXPORT kbpC_LbeamProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_LbeamProfile, kbpC_BeamProfile, 0x264000B, 203)
    CLS_WORD(constructor, "LProfile")

    /// Lengths of the legs over all, the level one first.
    CLS_ATTRIBUTE(double, a, 0.0)
    CLS_ATTRIBUTE(double, b, 0.0)
    /// Thicknesses of the legs.
    CLS_ATTRIBUTE(double, t1, 0.0)
    CLS_ATTRIBUTE(double, t2, 0.0)

    /// Positive dimensions, and each leg thinner than the other is long.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 3 : 2; }
    CLS_END
};
