#pragma once

#include "kbpC_BeamProfile.h"

/// Hat: a web on either side, closed by one flange and spread by the other.
class OVR_EXPORT kbpC_HatProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_HatProfile, kbpC_BeamProfile, 0x2640016, 2202)
    CLS_WORD(constructor, "HatProfile")

    /// Place of the origin over the height.
    CLS_ATTRIBUTE(double, l, 0.0)
    /// Height over all.
    CLS_ATTRIBUTE(double, h, 0.0)
    /// Width over all.
    CLS_ATTRIBUTE(double, b, 0.0)
    /// Widths of the flanges; 0 for one that is not there.
    CLS_ATTRIBUTE(double, b1, 0.0)
    CLS_ATTRIBUTE(double, b2, 0.0)
    /// Thicknesses of the flanges and, the third, of the webs.
    CLS_ATTRIBUTE(double, t1, 0.0)
    CLS_ATTRIBUTE(double, t2, 0.0)
    CLS_ATTRIBUTE(double, t3, 0.0)

    /// The rules of an I; two flanges must also fit into the height, and the first must span both webs.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 5 : 3; }
    CLS_END
};
