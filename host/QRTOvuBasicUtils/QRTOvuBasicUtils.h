#pragma once

#include "ovr_Export.h"

/// Brings this library and what it stands on up, and enters its types. The first call adds 1 to `tally`,
/// later calls only count.
OVR_EXPORT void QRTOvuBasicUtils_initialize(int& tally);

/// Undoes one QRTOvuBasicUtils_initialize. The call that undoes the first takes 1 from `tally` and the types
/// out.
OVR_EXPORT void QRTOvuBasicUtils_finalize(int& tally);
