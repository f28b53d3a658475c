#pragma once

#include "cls_Module.h"

/// Code of a optimization rule: the position of its message in `kopC_Messages`.
enum kopC_ErrorEnm : int
{
};

/// Messages of the optimization rules; they serve callers outside, too.
OVR_EXPORT extern const cls_MessageTable kopC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kopC_Assert(bool condition, kopC_ErrorEnm code);
