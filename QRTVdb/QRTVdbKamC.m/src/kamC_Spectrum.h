#pragma once

#include "kamC_Amplitude.h"

/// Response spectrum.
class OVR_EXPORT kamC_Spectrum : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_Spectrum, kamC_Amplitude, 0x244000A, 203)
    CLS_WORD(constructor, "Spectrum")
    OMU_ENUM(SpectrumTypeEnm, DISPLACEMENT = 0, VELOCITY = 1, ACCELERATION = 2)

    CLS_ATTRIBUTE(SpectrumTypeEnm, type, SpectrumTypeEnm::ACCELERATION)
    /// Acceleration of gravity.
    CLS_ATTRIBUTE(double, g, 0.0)
    /// Rows of magnitude, frequency and damping.
    CLS_ATTRIBUTE_AS(cls_xp2DArrayDouble, table, "data")

    virtual void AssertValid() const;
    CLS_END
};
