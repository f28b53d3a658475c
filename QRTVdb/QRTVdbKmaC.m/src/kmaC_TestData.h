#pragma once

#include "kmaC_MaterialTable.h"
#include "kmaC_rules.h"

// Measured data to which the constants of rubber-like materials are fitted.

/// Stress and strain in simple tension or compression.
class OVR_EXPORT kmaC_UniaxialTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(UniaxialTestData, 0x2380051, 324)
    /// Points of the smoothing; not set means that the data are taken as they are.
    CLS_ATTRIBUTE(int, smoothing, cls_UnsetInt)
    /// Whether the data have a column of lateral strains.
    CLS_ATTRIBUTE(bool, lateralNominalStrain, false)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override {}
    CLS_END
};

/// Stress and strain in equal tension in two directions.
class OVR_EXPORT kmaC_BiaxialTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(BiaxialTestData, 0x2380006, 324)
    /// Points of the smoothing; not set means that the data are taken as they are.
    CLS_ATTRIBUTE(int, smoothing, cls_UnsetInt)
    /// Whether the data have a column of lateral strains.
    CLS_ATTRIBUTE(bool, lateralNominalStrain, false)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override {}
    CLS_END
};

/// Stress and strain in pure shear.
class OVR_EXPORT kmaC_PlanarTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(PlanarTestData, 0x238003B, 324)
    /// Points of the smoothing; not set means that the data are taken as they are.
    CLS_ATTRIBUTE(int, smoothing, cls_UnsetInt)
    /// Whether the data have a column of lateral strains.
    CLS_ATTRIBUTE(bool, lateralNominalStrain, false)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override {}
    CLS_END
};

/// Pressure and volume in compression, or moduli of the volume against time.
class OVR_EXPORT kmaC_VolumetricTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(VolumetricTestData, 0x2380057, 325)
    /// Share of the bulk modulus that is left after a long time.
    CLS_ATTRIBUTE(double, volinf, cls_UnsetDouble)
    /// Points of the smoothing; not set means that the data are taken as they are.
    CLS_ATTRIBUTE(int, smoothing, cls_UnsetInt)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override {}
    CLS_END
};

/// Stress and strain in simple shear.
class OVR_EXPORT kmaC_SimpleShearTestData : public kmaC_MaterialOption
{
    KMAC_OPTION(SimpleShearTestData, 0x2380048, 203)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override {}
    CLS_END
};
