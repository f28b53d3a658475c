#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the module of materials: its type table, the model's materials, its classes and their old
/// versions. Only the first call acts; it adds 1 to `tally`.
OVR_EXPORT void QRTVdbKmaC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally` and takes the container back from the
/// model.
OVR_EXPORT void QRTVdbKmaC_finalize(int& tally);

/// The module's type table, under the number 568: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry kmaC_ArchEntry();
