#pragma once

#include "kbpC_BeamProfile.h"

/// A web with a flange on top.
class OVR_EXPORT kbpC_TbeamProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_TbeamProfile, kbpC_BeamProfile, 0x264000C, 203)
    CLS_WORD(constructor, "TProfile")

    /// Width of the flange.
    CLS_ATTRIBUTE(double, b, 0.0)
    /// Height over all.
    CLS_ATTRIBUTE(double, h, 0.0)
    /// Place of the origin over the height.
    CLS_ATTRIBUTE(double, l, 0.0)
    /// Thickness of the flange.
    CLS_ATTRIBUTE(double, tf, 0.0)
    /// Thickness of the web.
    CLS_ATTRIBUTE(double, tw, 0.0)

    /// Positive dimensions but for `l`, a flange thinner than the height and a web thinner than the flange is
    /// wide.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 5 : 3; }
    CLS_END
};
