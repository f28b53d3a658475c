#pragma once

#include "kbpC_BeamProfile.h"

/// Section by its properties, without a shape.
class OVR_EXPORT kbpC_GeneralizedProfile : public kbpC_BeamProfile
{
    CLS_CONCRETE(kbpC_GeneralizedProfile, kbpC_BeamProfile, 0x2640002, 430)
    CLS_WORD(constructor, "GeneralizedProfile")

    CLS_ATTRIBUTE(double, area, 0.0)
    /// Moments of inertia.
    CLS_ATTRIBUTE(double, i11, 0.0)
    CLS_ATTRIBUTE(double, i12, 0.0)
    CLS_ATTRIBUTE(double, i22, 0.0)
    /// Torsional constant.
    CLS_ATTRIBUTE(double, j, 0.0)
    /// Sectorial moment and warping constant.
    CLS_ATTRIBUTE(double, gammaO, 0.0)
    CLS_ATTRIBUTE(double, gammaW, 0.0)

    /// A positive area and first moment of inertia, a torsional constant that is not negative, and a product
    /// of inertia that fits the moments. A negative `i22` asks nothing of the product.
    void AssertValid() const override;
    int NumTempPoints(bool) const override { return 1; }
    CLS_END
};
