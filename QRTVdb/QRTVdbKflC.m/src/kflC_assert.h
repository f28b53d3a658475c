#pragma once

#include "cls_Module.h"

/// Messages of the filter rules, which are translated. Some codes are raised by no rule here; they serve
/// callers outside.
OVR_EXPORT extern const cls_MessageTable kflC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the translated
/// message of `code`. An unknown code throws with an empty text.
OVR_EXPORT void kflC_Assert(bool condition, int code);
