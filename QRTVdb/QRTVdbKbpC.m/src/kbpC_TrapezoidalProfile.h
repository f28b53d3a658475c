#pragma once

#include "kbpC_BeamProfile.h"

/// Solid trapezoid.
class OVR_EXPORT kbpC_TrapezoidalProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_TrapezoidalProfile, kbpC_BeamProfile, 0x264000D, 203)
    CLS_WORD(constructor, "TrapezoidalProfile")

    /// Width at the bottom.
    CLS_ATTRIBUTE(double, a, 0.0)
    /// Height.
    CLS_ATTRIBUTE(double, b, 0.0)
    /// Width at the top.
    CLS_ATTRIBUTE(double, c, 0.0)
    /// Place of the origin over the height.
    CLS_ATTRIBUTE(double, d, 0.0)

    /// Positive dimensions but for `d`, which may be anything.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 4 : 3; }
    CLS_END
};
