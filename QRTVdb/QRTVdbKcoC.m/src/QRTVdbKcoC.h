#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the module of constraints: its type table, the model's constraints, its classes and their old
/// versions. Only the first call acts; it adds 1 to `tally`.
OVR_EXPORT void QRTVdbKcoC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally` and takes the container back from the
/// model.
OVR_EXPORT void QRTVdbKcoC_finalize(int& tally);

/// The module's type table, under the number 720: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry kcoC_ArchEntry();
