#pragma once

#include "kmaC_TestData.h"

/// Creep of a rubber-like material that dissipates energy in each cycle.
class OVR_EXPORT kmaC_Hysteresis : public kmaC_MaterialOption
{
    KMAC_OPTION(Hysteresis, 0x238005F, 203)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override { table.AssertValid(); }
    CLS_END
};

/// Elasticity of rubber-like materials at large strains, by a strain energy potential.
class OVR_EXPORT kmaC_Hyperelastic : public kmaC_MaterialOption
{
    KMAC_OPTION(Hyperelastic, 0x238002E, 1565)
    OMU_ENUM(TypeEnm, ARRUDA_BOYCE = 0, MARLOW = 1, MOONEY_RIVLIN = 2, NEO_HOOKE = 3, OGDEN = 4,
             POLYNOMIAL = 5, REDUCED_POLYNOMIAL = 6, USER = 7, VAN_DER_WAALS = 8, YEOH = 9, UNKNOWN = 10,
             VALANIS_LANDEL = 11)
    OMU_ENUM(ModuliTimeScaleEnm, INSTANTANEOUS = 0, LONG_TERM = 1)
    OMU_ENUM(DeviatoricResponseEnm, UNIAXIAL = 0, BIAXIAL = 1, PLANAR = 2)
    OMU_ENUM(VolumetricResponseEnm, DEFAULT = 0, VOLUMETRIC_DATA = 1, POISSON_RATIO = 2,
             LATERAL_NOMINAL_STRAIN = 3)
    OMU_ENUM(MaterialTypeEnm, ISOTROPIC = 0, ANISOTROPIC = 1)
    OMU_ENUM(AnisotropicTypeEnm, FUNG_ANISOTROPIC = 0, FUNG_ORTHOTROPIC = 1, HOLZAPFEL = 2, USER_DEFINED = 3)
    OMU_ENUM(FormulationEnm, STRAIN = 0, INVARIANT = 1)
    OMU_ENUM(BehaviorTypeEnm, INCOMPRESSIBLE = 0, COMPRESSIBLE = 1)

    /// The potential.
    CLS_ATTRIBUTE(TypeEnm, type, TypeEnm::UNKNOWN)
    CLS_ATTRIBUTE(ModuliTimeScaleEnm, moduliTimeScale, ModuliTimeScaleEnm::LONG_TERM)
    CLS_ATTRIBUTE(bool, temperatureDependency, false)
    /// Order of the potential.
    CLS_ATTRIBUTE(int, n, 1)
    /// Mixture of the two invariants, from 0 to 1; not set means that it is fitted.
    CLS_ATTRIBUTE(double, beta, cls_UnsetDouble)
    /// Whether the constants are fitted to test data; if not, the table has them.
    CLS_ATTRIBUTE(bool, testData, true)
    CLS_ATTRIBUTE(bool, compressible, false)
    /// Count of the values that a user subroutine takes.
    CLS_ATTRIBUTE(int, properties, 0)
    CLS_ATTRIBUTE(DeviatoricResponseEnm, deviatoricResponse, DeviatoricResponseEnm::UNIAXIAL)
    CLS_ATTRIBUTE(VolumetricResponseEnm, volumetricResponse, VolumetricResponseEnm::DEFAULT)
    CLS_ATTRIBUTE(double, poissonRatio, 0.0)
    CLS_ATTRIBUTE(MaterialTypeEnm, materialType, MaterialTypeEnm::ISOTROPIC)
    CLS_ATTRIBUTE(AnisotropicTypeEnm, anisotropicType, AnisotropicTypeEnm::FUNG_ANISOTROPIC)
    CLS_ATTRIBUTE(FormulationEnm, formulation, FormulationEnm::STRAIN)
    CLS_ATTRIBUTE(BehaviorTypeEnm, behaviorType, BehaviorTypeEnm::INCOMPRESSIBLE)
    CLS_ATTRIBUTE(int, dependencies, 0)
    /// Count of the families of fibres.
    CLS_ATTRIBUTE(int, localDirections, 0)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_BiaxialTestData>, biaxialTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_PlanarTestData>, planarTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_UniaxialTestData>, uniaxialTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_VolumetricTestData>, volumetricTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Hysteresis>, hysteresis)

    void AssertValid() const override;
    CLS_END
};

/// Elasticity of compressible foams at large strains.
class OVR_EXPORT kmaC_Hyperfoam : public kmaC_MaterialOption
{
    KMAC_OPTION(Hyperfoam, 0x238002F, 864)
    OMU_ENUM(ModuliEnm, INSTANTANEOUS = 0, LONG_TERM = 1)

    /// Whether the constants are fitted to test data; if not, the table has them.
    CLS_ATTRIBUTE(bool, testData, false)
    /// Poisson's ratio, from 0 to 0.5; not set means that it is fitted.
    CLS_ATTRIBUTE(double, poisson, cls_UnsetDouble)
    /// Order of the potential.
    CLS_ATTRIBUTE(int, n, 1)
    CLS_ATTRIBUTE(bool, temperatureDependency, false)
    CLS_ATTRIBUTE(ModuliEnm, moduli, ModuliEnm::LONG_TERM)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_BiaxialTestData>, biaxialTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_VolumetricTestData>, volumetricTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_PlanarTestData>, planarTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_SimpleShearTestData>, simpleShearTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_UniaxialTestData>, uniaxialTestData)

    void AssertValid() const override;
    CLS_END
};

/// Highly compressible foam whose response depends on the rate of strain.
class OVR_EXPORT kmaC_LowDensityFoam : public kmaC_MaterialOption
{
    KMAC_OPTION(LowDensityFoam, 0x238008F, 864)
    OMU_ENUM(StrainRateTypeEnm, PRINCIPAL = 0, VOLUMETRIC = 1)

    CLS_ATTRIBUTE(bool, elementRemoval, false)
    /// Greatest principal tensile stress; not set means that there is no limit.
    CLS_ATTRIBUTE(double, maxAllowablePrincipalStress, cls_UnsetDouble)
    CLS_ATTRIBUTE(bool, extrapolateStressStrainCurve, false)
    CLS_ATTRIBUTE(StrainRateTypeEnm, strainRateType, StrainRateTypeEnm::VOLUMETRIC)
    /// Coefficients of the relaxation.
    CLS_ATTRIBUTE(double, mu0, 0.0001)
    CLS_ATTRIBUTE(double, mu1, 0.005)
    CLS_ATTRIBUTE(double, alpha, 2.0)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_UniaxialTestData>, uniaxialTensionTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_UniaxialTestData>, uniaxialCompressionTestData)

    void AssertValid() const override;
    CLS_END
};
