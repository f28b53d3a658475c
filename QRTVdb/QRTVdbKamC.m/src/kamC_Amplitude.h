#pragma once

#include "cls_Class.h"

/// A named time history that loads and other features refer to.
class OVR_EXPORT kamC_Amplitude : public mem_AllocationOperators
{
    CLS_ABSTRACT_ROOT(kamC_Amplitude, 0x2440002, 430)
    CLS_WORD(setValues, "setValues")
    CLS_WORD(name, "name")
    CLS_WORD(amplitudeRepository, "amplitudes")
    OMU_ENUM(TimeSpanEnm, STEP = 0, TOTAL = 1)

    /// Whether times count from the begin of the step or of the analysis.
    CLS_ATTRIBUTE(TimeSpanEnm, timeSpan, TimeSpanEnm::STEP)
    CLS_END
};

using kamC_AmplitudeHandle = cow_COW<kamC_Amplitude, cow_Virtual<kamC_Amplitude>>;
