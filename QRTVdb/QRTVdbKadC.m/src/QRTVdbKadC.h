#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the module of adaptive mesh controls: its type table, the model's adaptive mesh controls, its
/// classes and their old versions. Only the first call acts; it adds 1 to `tally`.
OVR_EXPORT void QRTVdbKadC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally` and takes the container back from the
/// model.
OVR_EXPORT void QRTVdbKadC_finalize(int& tally);

/// The module's type table, under the number 616: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry kadC_ArchEntry();

/// Does nothing; part of the module's interface.
OVR_EXPORT void kadC_formalize();
