#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// Old versions of the adaptive mesh control, and the functions that convert their rows.

/// The smoothing algorithm GEOMETRY_ENHANCED, in whatever case, becomes ANALYSIS_PRODUCT_DEFAULT.
OVR_EXPORT void* Upgrade_kadC_AdptMeshCtrl_302_829(const dbc_Row& input, dbc_Row& output, int number);
/// Adds `originalConfigurationProjectionWeight`, 1, and `standardVolumetricSmoothingWeight`, 0.
OVR_EXPORT void* Upgrade_kadC_AdptMeshCtrl_829_860(const dbc_Row& input, dbc_Row& output, int number);

/// Registers the old versions, in the order in which the module has them.
void kadC_RegisterOldClasses();
