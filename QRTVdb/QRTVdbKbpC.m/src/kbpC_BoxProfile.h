#pragma once

#include "kbpC_BeamProfile.h"

/// Hollow rectangle.
class OVR_EXPORT kbpC_BoxProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_BoxProfile, kbpC_BeamProfile, 0x2640007, 430)
    CLS_WORD(constructor, "BoxProfile")

    /// Width over all.
    CLS_ATTRIBUTE(double, a, 0.0)
    /// Height over all.
    CLS_ATTRIBUTE(double, b, 0.0)
    /// Whether all walls have the thickness `t1`.
    CLS_ATTRIBUTE(bool, uniformThickness, false)
    /// Thicknesses of the walls in turn: 1 and 3 of those that stand, 2 and 4 of those that lie.
    CLS_ATTRIBUTE(double, t1, 0.0)
    CLS_ATTRIBUTE(double, t2, 0.0)
    CLS_ATTRIBUTE(double, t3, 0.0)
    CLS_ATTRIBUTE(double, t4, 0.0)

    /// Positive dimensions, and walls that leave room between them. Of uniform walls, only `t1` counts.
    void AssertValid() const override;
    int NumTempPoints(bool) const override { return 4; }
    CLS_END
};
