#pragma once

#include "cls_Module.h"

/// What a load case can name that is not there. The second three are for a list that offers what is there.
enum klcC_CompoundErrorEnm : int
{
    klcC_MissingLoad = 0,
    klcC_MissingBoundaryCondition = 1,
    klcC_MissingField = 2,
    klcC_MissingLoadInList = 3,
    klcC_MissingBoundaryConditionInList = 4,
    klcC_MissingFieldInList = 5
};

/// Messages of klcC_AssertLoadCaseContent; each has a place for a name.
OVR_EXPORT extern const cls_MessageTable klcC_CompoundMessages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`, `name` in its place. An unknown code throws with an empty text.
OVR_EXPORT void klcC_AssertLoadCaseContent(bool condition, klcC_CompoundErrorEnm code,
                                           const cow_String& name);
