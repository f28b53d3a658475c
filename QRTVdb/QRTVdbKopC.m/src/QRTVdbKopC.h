#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the module of the optimization classes: its type table, its classes and their old versions.
/// Only the first call acts; it adds 1 to `tally`.
OVR_EXPORT void QRTVdbKopC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally`.
OVR_EXPORT void QRTVdbKopC_finalize(int& tally);

/// The module's type table, under the number 932: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry kopC_ArchEntry();
