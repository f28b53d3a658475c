#pragma once

#include "ovr_Export.h"

/// Brings up the datums and what they stand on: enters the type table and describes the classes. The first
/// call adds 1 to `tally`, later calls only count.
OVR_EXPORT void QRTShpCore_initialize(int& tally);

/// Undoes one QRTShpCore_initialize. The call that undoes the first takes 1 from `tally`.
OVR_EXPORT void QRTShpCore_finalize(int& tally);
