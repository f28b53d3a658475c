#pragma once

#include "ovr_Export.h"

/// Brings up the class machinery and what it stands on. The first call adds 1 to `tally`, later calls only
/// count.
OVR_EXPORT void QRTRomCore_initialize(int& tally);

/// Undoes one QRTRomCore_initialize. The call that undoes the first drops all class descriptions and takes 1
/// from `tally`.
OVR_EXPORT void QRTRomCore_finalize(int& tally);
