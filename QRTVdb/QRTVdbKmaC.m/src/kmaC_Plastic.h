#pragma once

#include "kmaC_PlasticOptions.h"

/// Plasticity of metals.
class OVR_EXPORT kmaC_Plastic : public kmaC_MaterialOption
{
    KMAC_OPTION(Plastic, 0x238003C, 2217)
    OMU_ENUM(HardeningEnm, ISOTROPIC = 0, KINEMATIC = 1, MULTILINEAR_KINEMATIC = 2, COMBINED = 3,
             JOHNSON_COOK = 4, USER = 5)
    OMU_ENUM(DataTypeEnm, HALF_CYCLE = 0, PARAMETERS = 1, STABILIZED = 2)
    OMU_ENUM(ExtrapolationEnm, CONSTANT = 0, LINEAR = 1)

    CLS_ATTRIBUTE(HardeningEnm, hardening, HardeningEnm::ISOTROPIC)
    /// Whether the table has a column of strain rates.
    CLS_ATTRIBUTE(bool, rate, false)
    /// What the table of combined hardening has.
    CLS_ATTRIBUTE(DataTypeEnm, dataType, DataTypeEnm::HALF_CYCLE)
    CLS_ATTRIBUTE(bool, strainRangeDependency, false)
    CLS_ATTRIBUTE(int, numBackstresses, 1)
    /// Rows of yield stress and plastic strain, or of the constants of a law.
    KMAC_DEPENDENT_TABLE
    CLS_ATTRIBUTE(kmaC_Option<kmaC_RateDependent>, rateDependent)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Potential>, potential)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_CyclicHardening>, cyclicHardening)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Ornl>, ornl)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_CycledPlastic>, cycledPlastic)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_AnnealTemperature>, annealTemperature)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_TensileFailure>, tensileFailure)
    /// Count of the values that a user subroutine takes.
    CLS_ATTRIBUTE(int, properties, 0)
    CLS_ATTRIBUTE(double, scaleStress, cls_UnsetDouble)
    CLS_ATTRIBUTE(bool, staticRecovery, false)
    /// What holds behind the last row.
    CLS_ATTRIBUTE(ExtrapolationEnm, extrapolation, ExtrapolationEnm::CONSTANT)

    void AssertValid() const override;
    CLS_END
};

/// Deformation plasticity after Ramberg and Osgood.
class OVR_EXPORT kmaC_DeformationPlasticity : public kmaC_MaterialOption
{
    KMAC_OPTION(DeformationPlasticity, 0x2380016, 203)
    CLS_ATTRIBUTE(bool, temperatureDependency, false)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override { table.AssertValid(); }
    CLS_END
};

/// Correction of linear results for plasticity.
class OVR_EXPORT kmaC_PlasticityCorrection : public kmaC_MaterialOption
{
    KMAC_OPTION(PlasticityCorrection, 0x23800AF, 2300)
    OMU_ENUM(TypeEnm, RAMBERG_OSGOOD = 0, TABULAR = 1)

    CLS_ATTRIBUTE(TypeEnm, type, TypeEnm::RAMBERG_OSGOOD)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Hardening of a foam that crushes.
class OVR_EXPORT kmaC_FoamHardening : public kmaC_MaterialOption
{
    KMAC_OPTION_AS(FoamHardening, 0x238002B, 203, "CrushableFoamHardening")
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Plasticity of a foam that crushes.
class OVR_EXPORT kmaC_Foam : public kmaC_MaterialOption
{
    KMAC_OPTION_AS(Foam, 0x238002A, 203, "CrushableFoam")
    OMU_ENUM(HardeningEnm, VOLUMETRIC = 0, ISOTROPIC = 1)

    CLS_ATTRIBUTE(HardeningEnm, hardening, HardeningEnm::VOLUMETRIC)
    KMAC_DEPENDENT_TABLE
    CLS_ATTRIBUTE_AS(kmaC_Option<kmaC_FoamHardening>, foamHardening, "crushableFoamHardening")
    CLS_ATTRIBUTE(kmaC_Option<kmaC_RateDependent>, rateDependent)

    void AssertValid() const override;
    CLS_END
};
