#pragma once

#include "kamC_Amplitude.h"

/// Fourier series.
class OVR_EXPORT kamC_Periodic : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_Periodic, kamC_Amplitude, 0x2440006, 424)
    CLS_WORD(constructor, "PeriodicAmplitude")

    /// Circular frequency, in radians per time.
    CLS_ATTRIBUTE(double, frequency, 0.0)
    CLS_ATTRIBUTE(double, start, 0.0)
    /// Constant term.
    CLS_ATTRIBUTE(double, a_0, 0.0)
    /// Rows of cosine and sine coefficients.
    CLS_ATTRIBUTE(cls_xp2DArrayDouble, data)

    /// At least one row, at most two columns.
    void AssertValid() const;
    CLS_END
};
