#pragma once

#include "kamC_Amplitude.h"

/// Time history that decays exponentially.
class OVR_EXPORT kamC_Decay : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_Decay, kamC_Amplitude, 0x2440003, 203)
    CLS_WORD(constructor, "DecayAmplitude")

    CLS_ATTRIBUTE(double, initial, 0.0)
    CLS_ATTRIBUTE(double, maximum, 0.0)
    CLS_ATTRIBUTE(double, start, 0.0)
    CLS_ATTRIBUTE(double, decayTime, 0.0)

    /// No rules.
    void AssertValid() const;
    CLS_END
};
