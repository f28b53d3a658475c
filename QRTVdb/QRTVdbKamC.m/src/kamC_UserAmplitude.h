#pragma once

#include "kamC_Amplitude.h"

/// Time history that a user subroutine computes.
class OVR_EXPORT kamC_UserAmplitude : public kamC_Amplitude
{
    CLS_CONCRETE(kamC_UserAmplitude, kamC_Amplitude, 0x244001A, 1111)
    CLS_WORD(constructor, "UserAmplitude")

    /// Number of state variables that the subroutine keeps.
    CLS_ATTRIBUTE(int, numVariables, 0)

    /// No rules.
    void AssertValid() const;
    CLS_END
};
