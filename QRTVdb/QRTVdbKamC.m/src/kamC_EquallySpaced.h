#pragma once

#include "kamC_Amplitude.h"
#include "kamC_BaselineCorrection.h"

/// Values at a fixed interval of time.
class OVR_EXPORT kamC_EquallySpaced : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_EquallySpaced, kamC_Amplitude, 0x2440004, 424)
    CLS_WORD(constructor, "EquallySpacedAmplitude")
    OMU_ENUM(SmoothEnm, SOLVER_DEFAULT = 0)

    CLS_ATTRIBUTE(double, fixedInterval, 0.0)
    /// Time of the first value.
    CLS_ATTRIBUTE(double, begin, 0.0)
    /// Smoothed part of each interval, from 0 to 0.5; not set means that the solver decides.
    CLS_ATTRIBUTE(double, smooth, cls_UnsetDouble)
    CLS_ATTRIBUTE(cls_xp1DArrayListDouble, data)
    CLS_ATTRIBUTE(kamC_BaselineCorrectionHandle, baselineCorrection)

    /// Smoothing, interval, at least two values, then the baseline correction.
    void AssertValid() const;
    CLS_END
};
