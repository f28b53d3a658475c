#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// Old versions of the filters, and the functions that convert their rows.

/// Adds `order`, 2.
OVR_EXPORT void* Upgrade_kflC_Filter_503_821(const dbc_Row& input, dbc_Row& output, int number);
/// Adds `limit`, `halt` and `operation` where the row has no value for them. The limit is 0 and not the
/// marker of a new filter, so that the rules refuse what comes of it.
OVR_EXPORT void* Upgrade_kflC_Filter_821_1351(const dbc_Row& input, dbc_Row& output, int number);
/// Adds `invariant`, NONE.
OVR_EXPORT void* Upgrade_kflC_Filter_1351_1412(const dbc_Row& input, dbc_Row& output, int number);

/// Registers the old versions, in the order in which the module has them.
void kflC_RegisterOldClasses();
