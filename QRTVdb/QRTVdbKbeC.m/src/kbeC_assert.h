#pragma once

#include "cls_Module.h"

/// Code of a connector and contact behaviour rule: the position of its message in `kbeC_Messages`.
enum kbeC_ErrorEnm : int
{
};

/// Messages of the connector and contact behaviour rules; they serve callers outside, too.
OVR_EXPORT extern const cls_MessageTable kbeC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kbeC_Assert(bool condition, kbeC_ErrorEnm code);
