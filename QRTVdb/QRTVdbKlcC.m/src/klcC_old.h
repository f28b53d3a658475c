#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// The old version of the load case, and the function that converts its rows.

/// Sets `suppress` to false.
OVR_EXPORT void* Upgrade_klcC_LoadCase_302_1323(const dbc_Row& input, dbc_Row& output, int number);

/// Registers the old version.
void klcC_RegisterOldClasses();
