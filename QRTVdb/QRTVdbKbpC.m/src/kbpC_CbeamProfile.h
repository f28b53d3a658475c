#pragma once

#include "kbpC_BeamProfile.h"

/// Channel: a web with two flanges on one side of it.
class OVR_EXPORT kbpC_CbeamProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_CbeamProfile, kbpC_BeamProfile, 0x2640015, 2401)
    CLS_WORD(constructor, "ChannelProfile")

    /// Place of the origin over the height.
    CLS_ATTRIBUTE(double, l, 0.0)
    /// Height over all.
    CLS_ATTRIBUTE(double, h, 0.0)
    /// Widths of the flanges; 0 for one that is not there.
    CLS_ATTRIBUTE(double, b1, 0.0)
    CLS_ATTRIBUTE(double, b2, 0.0)
    /// Thicknesses of the flanges and, the third, of the web.
    CLS_ATTRIBUTE(double, t1, 0.0)
    CLS_ATTRIBUTE(double, t2, 0.0)
    CLS_ATTRIBUTE(double, t3, 0.0)
    /// Offset of the origin along the flanges.
    CLS_ATTRIBUTE(double, o, 0.0)

    /// The rules of an I; two flanges must also fit into the height and reach beyond the web.
    void AssertValid() const override;
    int NumTempPoints(bool flag) const override { return flag ? 5 : 3; }
    CLS_END
};
