#pragma once

#include "kamC_Amplitude.h"
#include "kamC_BaselineCorrection.h"

/// Values at given times.
class OVR_EXPORT kamC_Tabular : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_Tabular, kamC_Amplitude, 0x2440008, 424)
    CLS_WORD(constructor, "TabularAmplitude")
    OMU_ENUM(SmoothEnm, SOLVER_DEFAULT = 0)

    /// Smoothed part of each interval, from 0 to 0.5; not set means that the solver decides.
    CLS_ATTRIBUTE(double, smooth, cls_UnsetDouble)
    /// Rows of time and amplitude.
    CLS_ATTRIBUTE(cls_xp2DArrayDouble, data)
    CLS_ATTRIBUTE(kamC_BaselineCorrectionHandle, baselineCorrection)

    /// Smoothing, at most two columns, at least two rows, times that do not decrease, then the baseline
    /// correction.
    void AssertValid() const;
    CLS_END
};
