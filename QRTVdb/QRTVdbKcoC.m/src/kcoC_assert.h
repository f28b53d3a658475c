#pragma once

#include "cls_Module.h"

/// Code of a constraint rule: the position of its message in `kcoC_Messages`.
enum kcoC_ErrorEnm : int
{
};

/// Messages of the constraint rules; they serve callers outside, too.
OVR_EXPORT extern const cls_MessageTable kcoC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kcoC_Assert(bool condition, kcoC_ErrorEnm code);
