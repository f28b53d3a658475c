#pragma once

#include "cls_Module.h"

/// Messages of the table and event series rules; they serve callers outside, too.
OVR_EXPORT extern const cls_MessageTable ktbC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void ktbC_Assert(bool condition, int code);
