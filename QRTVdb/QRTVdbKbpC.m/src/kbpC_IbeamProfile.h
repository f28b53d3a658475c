#pragma once

#include "kbpC_BeamProfile.h"

/// A web with a flange at either end.
class OVR_EXPORT kbpC_IbeamProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_IbeamProfile, kbpC_BeamProfile, 0x2640006, 430)
    CLS_WORD(constructor, "IProfile")

    /// Place of the origin over the height.
    CLS_ATTRIBUTE(double, l, 0.0)
    /// Height over all.
    CLS_ATTRIBUTE(double, h, 0.0)
    /// Widths of the flanges, the lower one first; 0 for one that is not there.
    CLS_ATTRIBUTE(double, b1, 0.0)
    CLS_ATTRIBUTE(double, b2, 0.0)
    /// Thicknesses of the flanges and, the third, of the web.
    CLS_ATTRIBUTE(double, t1, 0.0)
    CLS_ATTRIBUTE(double, t2, 0.0)
    CLS_ATTRIBUTE(double, t3, 0.0)

    /// A positive height and web, at least one flange, and a positive thickness of what is there.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 5 : 3; }
    CLS_END
};
