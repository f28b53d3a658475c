#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// Old versions of the amplitudes, and the functions that convert their rows. A row that is in the new form
// already passes through unchanged; what a row lacks is left to the defaults.

/// The attribute `time` is called `timeSpan` from version 424 on.
OVR_EXPORT void* Upgrade_kamC_Amplitude_208_424(const dbc_Row& input, dbc_Row& output, int number);

/// The values that stood in `table` stand in `data` from version 424 on.
OVR_EXPORT void* Upgrade_kamC_EquallySpaced_203_424(const dbc_Row& input, dbc_Row& output, int number);

// The same function for the other kinds that have such values.
inline constexpr auto& Upgrade_kamC_Periodic_203_424 = Upgrade_kamC_EquallySpaced_203_424;
inline constexpr auto& Upgrade_kamC_SmoothStep_203_424 = Upgrade_kamC_EquallySpaced_203_424;
inline constexpr auto& Upgrade_kamC_Tabular_203_424 = Upgrade_kamC_EquallySpaced_203_424;

/// Registers the old versions, in the order in which the module has them.
void kamC_RegisterOldClasses();
