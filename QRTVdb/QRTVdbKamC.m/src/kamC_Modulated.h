#pragma once

#include "kamC_Amplitude.h"

/// Product of two sines on a constant.
class OVR_EXPORT kamC_Modulated : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_Modulated, kamC_Amplitude, 0x2440005, 203)
    CLS_WORD(constructor, "ModulatedAmplitude")

    CLS_ATTRIBUTE(double, initial, 0.0)
    CLS_ATTRIBUTE(double, magnitude, 0.0)
    CLS_ATTRIBUTE(double, start, 0.0)
    /// Circular frequencies, in radians per time.
    CLS_ATTRIBUTE(double, frequency1, 0.0)
    CLS_ATTRIBUTE(double, frequency2, 0.0)

    /// No rules.
    void AssertValid() const;
    CLS_END
};
