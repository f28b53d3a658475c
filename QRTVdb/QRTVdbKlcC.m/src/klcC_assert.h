#pragma once

#include "cls_Module.h"

/// Rules of load cases. Those behind the first are checked by callers outside, against the model.
enum klcC_ErrorEnm : int
{
    klcC_ZeroScaleFactor = 0,
    klcC_NameTaken = 1,
    klcC_SpecifiedTwice = 2,
    klcC_UnfitStep = 3,
    klcC_BoundaryConditionInModalStep = 4,
    klcC_NoSimBasedAnalysis = 5,
    klcC_SuppressedLoadCase = 6
};

/// Messages of the load case rules.
OVR_EXPORT extern const cls_MessageTable klcC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void klcC_Assert(bool condition, klcC_ErrorEnm code);
