#pragma once

#include "cls_Module.h"

/// Messages of the material rules. Some codes are raised by no rule here; they serve callers outside.
OVR_EXPORT extern const cls_MessageTable kmaC_Messages;

/// Place of a message in their table. The numbers are fixed.
using kmaC_ErrorEnm = int;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kmaC_Assert(bool condition, kmaC_ErrorEnm code);
