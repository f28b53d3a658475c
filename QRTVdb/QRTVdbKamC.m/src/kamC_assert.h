#pragma once

#include "cls_Module.h"

/// Messages of the amplitude rules. Some codes are raised by no rule here; they serve callers outside.
OVR_EXPORT extern const cls_MessageTable kamC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kamC_Assert(bool condition, int code);
