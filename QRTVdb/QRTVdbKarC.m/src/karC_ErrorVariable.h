#pragma once

#include "karC_RemeshingRule.h"

/// What is known of an error variable.
struct karC_ErrorVariable
{
    const char* name;
    const char* description;
    const char* companion;
    const char* base;
    karC_RemeshingRule::karC_SizingMethod sizingMethod; ///< used where a rule says DEFAULT
};

/// The error variable of this name, or null.
const karC_ErrorVariable* karC_FindErrorVariable(const cow_String& name);
