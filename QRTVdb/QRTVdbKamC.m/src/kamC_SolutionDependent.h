#pragma once

#include "kamC_Amplitude.h"

/// Time history that follows from a solution variable, within bounds.
class OVR_EXPORT kamC_SolutionDependent : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_SolutionDependent, kamC_Amplitude, 0x2440007, 203)
    CLS_WORD(constructor, "SolutionDependentAmplitude")

    CLS_ATTRIBUTE(double, initial, 1.0)
    CLS_ATTRIBUTE(double, minimum, 0.1)
    CLS_ATTRIBUTE(double, maximum, 1000.0)

    /// The initial value must lie within the bounds.
    void AssertValid() const;
    CLS_END
};
