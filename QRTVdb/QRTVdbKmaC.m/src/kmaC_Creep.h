#pragma once

#include "kmaC_PlasticOptions.h"

/// Creep.
class OVR_EXPORT kmaC_Creep : public kmaC_MaterialOption
{
    KMAC_OPTION(Creep, 0x2380012, 2008)
    OMU_ENUM(LawEnm, STRAIN = 1, TIME = 2, HYPERBOLIC_SINE = 4, USER = 5, POWER_LAW = 0, TIME_POWER_LAW = 3,
             ANAND = 6, DARVEAUX = 7, DOUBLE_POWER = 8)
    OMU_ENUM(TimeEnm, CREEP = 0, TOTAL = 1)

    CLS_ATTRIBUTE(LawEnm, law, LawEnm::STRAIN)
    KMAC_DEPENDENT_TABLE
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Ornl>, ornl)
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Potential>, potential)
    CLS_ATTRIBUTE(TimeEnm, time, TimeEnm::TOTAL)

    void AssertValid() const override;
    CLS_END
};

/// Viscous part of a material with two layers.
class OVR_EXPORT kmaC_Viscous : public kmaC_MaterialOption
{
    KMAC_OPTION(Viscous, 0x2380070, 2008)
    OMU_ENUM(LawEnm, STRAIN = 1, TIME = 2, USER = 4, POWER_LAW = 0, TIME_POWER_LAW = 3, ANAND = 5,
             DARVEAUX = 6, DOUBLE_POWER = 7)
    OMU_ENUM(TimeEnm, CREEP = 0, TOTAL = 1)

    CLS_ATTRIBUTE(LawEnm, law, LawEnm::STRAIN)
    KMAC_DEPENDENT_TABLE
    CLS_ATTRIBUTE(kmaC_Option<kmaC_Potential>, potential)
    CLS_ATTRIBUTE(TimeEnm, time, TimeEnm::TOTAL)

    void AssertValid() const override;
    CLS_END
};
