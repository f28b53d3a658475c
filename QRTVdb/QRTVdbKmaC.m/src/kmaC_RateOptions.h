#pragma once

#include "kmaC_MaterialTable.h"
#include "kmaC_rules.h"

/// How tables are made regular before the analysis.
class OVR_EXPORT kmaC_Regularization : public kmaC_MaterialOption
{
    KMAC_OPTION(Regularization, 0x2380062, 404)
    OMU_ENUM(StrainRateRegularizationEnm, LOGARITHMIC = 0, LINEAR = 1)

    /// Greatest relative error.
    CLS_ATTRIBUTE(double, rtol, 0.03)
    CLS_ATTRIBUTE(StrainRateRegularizationEnm, strainRateRegularization,
                  StrainRateRegularizationEnm::LOGARITHMIC)

    void AssertValid() const override {}
    CLS_END
};

/// Shear that depends on the rate of strain.
class OVR_EXPORT kmaC_Shear : public kmaC_MaterialOption
{
    KMAC_OPTION(Shear, 0x2380092, 1436)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependencies(dependencies); }
    CLS_END
};
