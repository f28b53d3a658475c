#pragma once

#include "kmaC_MaterialTable.h"
#include "kmaC_rules.h"

// What plasticity and creep are refined by.

/// Yield stress that depends on the rate of strain.
class OVR_EXPORT kmaC_RateDependent : public kmaC_MaterialOption
{
    KMAC_OPTION(RateDependent, 0x2380043, 203)
    OMU_ENUM(TypeEnm, POWER_LAW = 0, YIELD_RATIO = 1, JOHNSON_COOK = 2)

    CLS_ATTRIBUTE(TypeEnm, type, TypeEnm::POWER_LAW)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Anisotropic yield: ratios of yield stresses.
class OVR_EXPORT kmaC_Potential : public kmaC_MaterialOption
{
    KMAC_OPTION(Potential, 0x2380042, 203)
    KMAC_DEPENDENT_TABLE

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// How the elastic range grows under cyclic loads.
class OVR_EXPORT kmaC_CyclicHardening : public kmaC_MaterialOption
{
    KMAC_OPTION(CyclicHardening, 0x2380014, 203)
    CLS_ATTRIBUTE(bool, temperatureDependency, false)
    CLS_ATTRIBUTE(int, dependencies, 0)
    /// Whether the table has the parameters of a law; if not, it has the yield stress itself.
    CLS_ATTRIBUTE(bool, parameters, false)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Yield stress after ten cycles.
class OVR_EXPORT kmaC_CycledPlastic : public kmaC_MaterialOption
{
    KMAC_OPTION(CycledPlastic, 0x2380013, 203)
    CLS_ATTRIBUTE(bool, temperatureDependency, false)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override { table.AssertValid(); }
    CLS_END
};

/// Temperature above which hardening is forgotten.
class OVR_EXPORT kmaC_AnnealTemperature : public kmaC_MaterialOption
{
    KMAC_OPTION(AnnealTemperature, 0x2380071, 813)
    CLS_ATTRIBUTE(int, dependencies, 0)
    CLS_ATTRIBUTE(kmaC_MaterialTable, table)

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};

/// Constitutive rules for steels at high temperature.
class OVR_EXPORT kmaC_Ornl : public kmaC_MaterialOption
{
    KMAC_OPTION(Ornl, 0x2380038, 203)
    /// Rate at which the kinematic shift saturates with creep strain.
    CLS_ATTRIBUTE(double, a, 0.3)
    /// The same for the shift itself; not set means that the solver decides.
    CLS_ATTRIBUTE(double, h, cls_UnsetDouble)
    CLS_ATTRIBUTE(bool, reset, false)

    void AssertValid() const override {}
    CLS_END
};

/// Failure in tension under shock.
class OVR_EXPORT kmaC_TensileFailure : public kmaC_MaterialOption
{
    KMAC_OPTION(TensileFailure, 0x23800A9, 2002)
    OMU_ENUM(PressureEnm, BRITTLE = 0, DUCTILE = 1)

    CLS_ATTRIBUTE_AT(int, 3, dependencies, 0)
    CLS_ATTRIBUTE_AT(kmaC_MaterialTable, 5, table)
    CLS_ATTRIBUTE_AT(PressureEnm, 0, pressure, PressureEnm::BRITTLE)
    CLS_ATTRIBUTE(PressureEnm, shear, PressureEnm::BRITTLE)
    CLS_ATTRIBUTE(bool, elementDeletion, true)
    CLS_ATTRIBUTE_AT(bool, 4, temperatureDependency, false)

    void AssertValid() const override { kmaC_AssertDependentTable(*this); }
    CLS_END
};
