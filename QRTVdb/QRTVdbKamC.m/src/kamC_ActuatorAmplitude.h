#pragma once

#include "kamC_Amplitude.h"

/// Time history that an actuator's controller prescribes while the analysis runs.
class OVR_EXPORT kamC_ActuatorAmplitude : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_ActuatorAmplitude, kamC_Amplitude, 0x2440019, 1111)
    CLS_WORD(constructor, "ActuatorAmplitude")

    /// No rules.
    void AssertValid() const;
    CLS_END
};
