#pragma once

#include "kmaC_TestData.h"

/// Moduli in shear and of the volume against time, measured together.
class OVR_EXPORT kmaC_CombinedTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(CombinedTestData, 0x238000F, 203)
    /// Shares of the moduli that are left after a long time.
    CLS_ATTRIBUTE(double, volinf, cls_UnsetDouble)
    CLS_ATTRIBUTE(double, shrinf, cls_UnsetDouble)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override { table.AssertValid(); }
    CLS_END
};

/// Modulus in shear against time.
class OVR_EXPORT kmaC_ShearTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(ShearTestData, 0x2380047, 203)
    /// Share of the modulus that is left after a long time.
    CLS_ATTRIBUTE(double, shrinf, cls_UnsetDouble)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override {}
    CLS_END
};

/// How temperature shifts the time scale.
class OVR_EXPORT kmaC_Trs : public kmaC_MaterialOption
{
    KMAC_OPTION(Trs, 0x2380050, 203)
    OMU_ENUM(DefinitionEnm, WLF = 0, ARRHENIUS = 1, USER = 2, TNM = 3, TABULAR = 4)

    CLS_ATTRIBUTE(DefinitionEnm, definition, DefinitionEnm::WLF)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override {}
    CLS_END
};

/// Viscoelasticity, in time or in frequency.
class OVR_EXPORT kmaC_Viscoelastic : public kmaC_MaterialOption
{
    KMAC_OPTION(Viscoelastic, 0x2380055, 876)
    OMU_ENUM(DomainEnm, FREQUENCY = 0, TIME = 1)
    OMU_ENUM(FrequencyEnm, FORMULA = 0, TABULAR = 1, PRONY = 2, CREEP_TEST_DATA = 3, RELAXATION_TEST_DATA = 4)
    OMU_ENUM(TypeEnm, ISOTROPIC = 0, ORTHOTROPIC = 2, TRACTION = 1, TRANSVERSELY_ISOTROPIC = 3)
    OMU_ENUM(PreloadEnm, NONE = 0, UNIAXIAL = 1, VOLUMETRIC = 2, UNIAXIAL_VOLUMETRIC = 3)
    OMU_ENUM(TimeEnm, PRONY = 0, CREEP_TEST_DATA = 1, RELAXATION_TEST_DATA = 2, FREQUENCY_DATA = 3)

    CLS_ATTRIBUTE(DomainEnm, domain, DomainEnm::FREQUENCY)
    CLS_ATTRIBUTE(FrequencyEnm, frequency, FrequencyEnm::FORMULA)
    CLS_ATTRIBUTE(TypeEnm, type, TypeEnm::ISOTROPIC)
    CLS_ATTRIBUTE(PreloadEnm, preload, PreloadEnm::NONE)
    CLS_ATTRIBUTE(TimeEnm, time, TimeEnm::PRONY)
    /// Greatest error of a fit.
    CLS_ATTRIBUTE(double, errtol, 0.01)
    /// Greatest count of terms of a fit, from 1 to 13.
    CLS_ATTRIBUTE(int, nmax, 13)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table, kmaC_MaterialTable::WithEmptyFirstRow())
    CLS_ATTRIBUTE(kmaC_MaterialTable, volumetricTable, kmaC_MaterialTable::WithEmptyFirstRow())
    CLS_ATTRIBUTE(kmaC_Option<kmaC_CombinedTestData>, combinedTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_ShearTestData>, shearTestData)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Trs>, trs)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_VolumetricTestData>, volumetricTestData)

    void AssertValid() const override;
    CLS_END
};
