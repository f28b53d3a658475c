#pragma once

#include "kamC_Amplitude.h"

/// Frequency function that defines a power spectral density.
class OVR_EXPORT kamC_PsdDefinition : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_PsdDefinition, kamC_Amplitude, 0x2440009, 203)
    CLS_WORD(constructor, "PsdDefinition")
    OMU_ENUM(PsdTypeEnm, BASE = 0, FORCE = 1, DB = 2)

    CLS_ATTRIBUTE_AS(PsdTypeEnm, type, "unitType", PsdTypeEnm::FORCE)
    CLS_ATTRIBUTE_AS(double, dbReference, "referencePower", 0.0)
    /// Acceleration of gravity.
    CLS_ATTRIBUTE_AS(double, g, "referenceGravityAcceleration", 1.0)
    /// Whether a user subroutine gives the function.
    CLS_ATTRIBUTE(bool, user, false)
    /// Rows of real part, imaginary part, and frequency or band number.
    CLS_ATTRIBUTE_AS(cls_xp2DArrayDouble, table, "data")

    virtual void AssertValid() const;
    CLS_END
};
