#pragma once

#include "kamC_Amplitude.h"

/// Values at given times, joined by smooth steps.
class OVR_EXPORT kamC_SmoothStep : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_SmoothStep, kamC_Amplitude, 0x244000B, 424)
    CLS_WORD(constructor, "SmoothStepAmplitude")

    /// Rows of time and amplitude.
    CLS_ATTRIBUTE(cls_xp2DArrayDouble, data)

    /// At most two columns, at least two rows, times that do not decrease.
    void AssertValid() const;
    CLS_END
};
