#pragma once

#include "kbpC_BeamProfile.h"

/// Solid circle.
class OVR_EXPORT kbpC_CircularProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_CircularProfile, kbpC_BeamProfile, 0x2640003, 203)
    CLS_WORD(constructor, "CircularProfile")

    CLS_ATTRIBUTE(double, r, 0.0)

    /// A positive radius.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 4 : 3; }
    CLS_END
};
