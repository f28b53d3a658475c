#pragma once

#include "ovr_Export.h"

/// Brings this library up. The first call adds 1 to `tally`, later calls only count.
OVR_EXPORT void QRTBasAlloc_initialize(int& tally);

/// Undoes one QRTBasAlloc_initialize. The call that undoes the first takes 1 from `tally`.
OVR_EXPORT void QRTBasAlloc_finalize(int& tally);
