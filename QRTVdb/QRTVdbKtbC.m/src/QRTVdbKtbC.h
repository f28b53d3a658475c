#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the module of tables and event series: its type table, the model's table collections, event
/// series types and event series, its classes and their old versions. Only the first call acts; it adds 1
/// to `tally`.
OVR_EXPORT void QRTVdbKtbC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally` and takes the containers back from the
/// model.
OVR_EXPORT void QRTVdbKtbC_finalize(int& tally);

/// The module's type table, under the number 772: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry ktbC_ArchEntry();
