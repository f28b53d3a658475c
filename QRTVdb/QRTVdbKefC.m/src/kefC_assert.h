#pragma once

#include "cls_Module.h"

/// Code of a engineering feature rule: the position of its message in `kefC_Messages`.
enum kefC_ErrorEnm : int
{
};

/// Messages of the engineering feature rules; they serve callers outside, too.
OVR_EXPORT extern const cls_MessageTable kefC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kefC_Assert(bool condition, kefC_ErrorEnm code);
