#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the module of filters: its type table, the model's filters, its classes and their old
/// versions. Only the first call acts; it adds 1 to `tally`.
OVR_EXPORT void QRTVdbKflC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally` and takes the container back from the
/// model.
OVR_EXPORT void QRTVdbKflC_finalize(int& tally);

/// The module's type table, under the number 849: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry kflC_ArchEntry();

/// Does nothing; part of the module's interface.
OVR_EXPORT void kflC_formalize();
