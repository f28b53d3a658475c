#pragma once

#include "kbpC_BeamProfile.h"

/// Hollow circle.
class OVR_EXPORT kbpC_PipeProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_PipeProfile, kbpC_BeamProfile, 0x2640005, 1647)
    CLS_WORD(constructor, "PipeProfile")
    OMU_ENUM(integrationSchemeEnum, THIN_WALL = 0, THICK_WALL = 1)

    /// Outer radius.
    CLS_ATTRIBUTE(double, r, 0.0)
    CLS_ATTRIBUTE(double, t, 0.0)
    CLS_ATTRIBUTE_AS(integrationSchemeEnum, integrationScheme, "formulation",
                     integrationSchemeEnum::THIN_WALL)

    /// A positive radius, and a positive wall that is thinner than it.
    void AssertValid() const override;
    int NumTempPoints(bool) const override { return 4; }
    CLS_END
};
