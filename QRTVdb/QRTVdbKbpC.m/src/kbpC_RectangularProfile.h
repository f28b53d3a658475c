#pragma once

#include "kbpC_BeamProfile.h"

/// Solid rectangle.
class OVR_EXPORT kbpC_RectangularProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_RectangularProfile, kbpC_BeamProfile, 0x264000A, 203)
    CLS_WORD(constructor, "RectangularProfile")

    /// Width.
    CLS_ATTRIBUTE(double, a, 0.0)
    /// Height.
    CLS_ATTRIBUTE(double, b, 0.0)

    /// Positive dimensions.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 4 : 3; }
    CLS_END
};
