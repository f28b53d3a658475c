#pragma once

#include "cls_Module.h"

/// Code of a field rule: the position of its message in `kfdC_Messages`.
enum kfdC_ErrorEnm : int
{
};

/// Messages of the field rules; they serve callers outside, too.
OVR_EXPORT extern const cls_MessageTable kfdC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kfdC_Assert(bool condition, kfdC_ErrorEnm code);
