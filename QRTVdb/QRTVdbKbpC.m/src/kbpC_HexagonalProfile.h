#pragma once

#include "kbpC_BeamProfile.h"

/// Hollow regular hexagon.
class OVR_EXPORT kbpC_HexagonalProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_HexagonalProfile, kbpC_BeamProfile, 0x2640004, 203)
    CLS_WORD(constructor, "HexagonalProfile")

    /// Radius of the circle through the corners.
    CLS_ATTRIBUTE(double, r, 0.0)
    CLS_ATTRIBUTE(double, t, 0.0)

    /// A positive radius, and a positive wall that is thinner than 0.866 of it.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 6 : 4; }
    CLS_END
};
