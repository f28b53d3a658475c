#pragma once

#include "ovr_Export.h"
#include "typ_ArchCompEntry.h"

/// Brings up the empty module, which holds nothing but its type table: its number stays taken. Only the
/// first call acts; it adds 1 to `tally`.
OVR_EXPORT void QRTVdbKipC_initialize(int& tally);

/// Undoes one initialization; the last one takes 1 from `tally`.
OVR_EXPORT void QRTVdbKipC_finalize(int& tally);

/// The module's type table, under the number 863: a row's index is the low half of its class id.
OVR_EXPORT typ_ArchCompEntry kipC_ArchEntry();

/// Does nothing; part of the module's interface.
OVR_EXPORT void kipC_formalize();
