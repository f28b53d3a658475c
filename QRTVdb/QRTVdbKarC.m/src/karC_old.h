#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// Old versions of the remeshing rule, and the functions that convert their rows.

/// Adds `description`, empty, where the row has no value for it.
OVR_EXPORT void* Upgrade_karC_RemeshingRule_802(const dbc_Row& input, dbc_Row& output, int number);
/// Adds what sizes the mesh, each attribute where the row has no value for it. The values are the zeros of
/// their kinds and not those of a new rule.
OVR_EXPORT void* Upgrade_karC_RemeshingRule_837(const dbc_Row& input, dbc_Row& output, int number);
/// The sizing method MINIMUM_MAXIUM, as that release spelled it, becomes MINIMUM_MAXIMUM.
OVR_EXPORT void* Upgrade_karC_RemeshingRule_856(const dbc_Row& input, dbc_Row& output, int number);
/// Sets `elementCountLimit` to what stands for no limit.
OVR_EXPORT void* Upgrade_karC_RemeshingRule_866(const dbc_Row& input, dbc_Row& output, int number);

/// Registers the old versions, in the order in which the module has them.
void karC_RegisterOldClasses();
