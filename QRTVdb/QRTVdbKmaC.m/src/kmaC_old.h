#pragma once

#include "dbc_ClassConverter.h"
#include "ovr_Export.h"

// Old versions of the materials and their options, and the functions that convert their rows. A row that is
// in the new form already passes through unchanged; what a row lacks is left to the defaults.

/// The temperature switch was stored as a number from version 452 to 813.
OVR_EXPORT void* Upgrade_kmaC_AnnealTemperature_307_452(const dbc_Row& input, dbc_Row& output, int number);

/// The volumetric response begins anew with version 328.
OVR_EXPORT void* Upgrade_kmaC_Hyperelastic_324_328(const dbc_Row& input, dbc_Row& output, int number);

/// The shear of an equation of state becomes the material's viscosity or elasticity.
OVR_EXPORT void* Upgrade_kmaC_Material_1436_1449(const dbc_Row& input, dbc_Row& output, int number);

/// Of stabilized data, more columns than the switches account for are ranges of strain. Of the parameters of
/// combined hardening, the third column becomes the attribute `gamma`.
OVR_EXPORT void* Upgrade_kmaC_Plastic_203_419(const dbc_Row& input, dbc_Row& output, int number);

/// `gamma` becomes the third column again, one for each backstress.
OVR_EXPORT void* Upgrade_kmaC_Plastic_419_1107(const dbc_Row& input, dbc_Row& output, int number);

/// The attribute `rate` is called `strainRateRegularization` from version 404 on.
OVR_EXPORT void* Upgrade_kmaC_Regularization_203_404(const dbc_Row& input, dbc_Row& output, int number);

/// Registers the old versions, in the order in which the module has them.
void kmaC_RegisterOldClasses();
