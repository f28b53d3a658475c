#pragma once

#include "kbpC_BeamProfile.h"

/// Thin-walled section of straight segments, one behind the other.
class OVR_EXPORT kbpC_ArbitraryProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_ArbitraryProfile, kbpC_BeamProfile, 0x2640009, 505)
    CLS_WORD(constructor, "ArbitraryProfile")

    /// A point in each row: its coordinates, and the thickness of the segment that ends there. The thickness
    /// of the first point means nothing.
    CLS_ATTRIBUTE(cls_xp2DArrayDouble, table)

    /// No thickness is negative, and no two segments that meet are both without one.
    void AssertValid() const override;
    int NumTempPoints(bool) const override { return table.Rows(); }
    CLS_END
};
