#pragma once

#include "ovr_Export.h"

/// Brings this library and what it stands on up. The first call adds 1 to `tally`, later calls only count.
OVR_EXPORT void QRTRfmInterface_initialize(int& tally);

/// Undoes one QRTRfmInterface_initialize. The call that undoes the first takes 1 from `tally`.
OVR_EXPORT void QRTRfmInterface_finalize(int& tally);
