#pragma once

#include "cls_Module.h"

/// What a connector behaviour can hold that does not fit its connector.
enum kbeC_ContentErrorEnm : int
{
    kbeC_UnavailableComponents = 0,
    kbeC_TableRateOptions = 1
};

/// Messages of kbeC_AssertContent; each has a place for a name.
OVR_EXPORT extern const cls_MessageTable kbeC_ContentMessages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`, `name` in its place. An unknown code throws with an empty text.
OVR_EXPORT void kbeC_AssertContent(bool condition, kbeC_ContentErrorEnm code, const cow_String& name);
