#pragma once

#include "kmaC_MaterialTable.h"
#include "kmaC_rules.h"

/// Stress limits for failure measures.
class OVR_EXPORT kmaC_FailStress : public kmaC_MaterialOption
{
    KMAC_OPTION(FailStress, 0x2380023, 203)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Strain limits for failure measures.
class OVR_EXPORT kmaC_FailStrain : public kmaC_MaterialOption
{
    KMAC_OPTION(FailStrain, 0x2380022, 203)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Linear elasticity.
class OVR_EXPORT kmaC_Elastic : public kmaC_MaterialOption
{
    KMAC_OPTION(Elastic, 0x238001E, 203)
    OMU_ENUM(TypeEnm, ISOTROPIC = 0, ORTHOTROPIC = 1, ANISOTROPIC = 2, ENGINEERING_CONSTANTS = 3, LAMINA = 4,
             TRACTION = 5, COUPLED_TRACTION = 6, SHORT_FIBER = 7, SHEAR = 8, BILAMINA = 9,
             TRANSVERSELY_ISOTROPIC = 10)
    OMU_ENUM(ModuliEnm, INSTANTANEOUS = 0, LONG_TERM = 1)

    CLS_ATTRIBUTE(TypeEnm, type, TypeEnm::ISOTROPIC)
    CLS_ATTRIBUTE(bool, noCompression, false)
    CLS_ATTRIBUTE(bool, noTension, false)
    CLS_ATTRIBUTE(bool, temperatureDependency, false)
    CLS_ATTRIBUTE(int, dependencies, 0)
    /// Whether the moduli hold at once or after a long time where the material is viscoelastic too.
    CLS_ATTRIBUTE(ModuliEnm, moduli, ModuliEnm::LONG_TERM)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_FailStress>, failStress)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_FailStrain>, failStrain)

    void AssertValid() const override;
    CLS_END
};

/// Elasticity whose moduli depend on the strain.
class OVR_EXPORT kmaC_Hypoelastic : public kmaC_MaterialOption
{
    KMAC_OPTION(Hypoelastic, 0x2380030, 203)
    /// Whether a user subroutine gives the moduli.
    CLS_ATTRIBUTE(bool, user, false)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override {}
    CLS_END
};
