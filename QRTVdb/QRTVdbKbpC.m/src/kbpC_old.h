#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// Old versions of the beam profiles, and the functions that convert their rows. A row that is in the new form
// already passes through unchanged; what a row lacks is left to the defaults.

/// The lists `x`, `y` and `t` become the columns of `table`, a row for each `x`. As `t` has one thickness for
/// each segment, it begins with the second row; what a list lacks is 0.
OVR_EXPORT void* Upgrade_kbpC_ArbitraryProfile_203_505(const dbc_Row& input, dbc_Row& output, int number);

/// `width`, `height` and `uniform` become `a`, `b` and `uniformThickness`.
OVR_EXPORT void* Upgrade_kbpC_BoxProfile_203_406(const dbc_Row& input, dbc_Row& output, int number);

/// The list `tempThick` becomes `t1` to `t4`, unless the row has a `t1`.
OVR_EXPORT void* Upgrade_kbpC_BoxProfile_406_430(const dbc_Row& input, dbc_Row& output, int number);

/// `jTorsion` becomes `j`.
OVR_EXPORT void* Upgrade_kbpC_GeneralizedProfile_203_406(const dbc_Row& input, dbc_Row& output, int number);

/// `radius` and `thickness` become `r` and `t`.
OVR_EXPORT void* Upgrade_kbpC_PipeProfile_203_406(const dbc_Row& input, dbc_Row& output, int number);

/// Adds `integrationScheme`, THIN_WALL.
OVR_EXPORT void* Upgrade_kbpC_PipeProfile_406_1647(const dbc_Row& input, dbc_Row& output, int number);

/// Registers the old versions, in the order in which the module has them.
void kbpC_RegisterOldClasses();
