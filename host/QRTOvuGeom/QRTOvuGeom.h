#pragma once

#include "ovr_Export.h"

/// Brings up the geometry and what it stands on: enters its type table and describes its classes. The first
/// call adds 1 to `tally`, later calls only count.
OVR_EXPORT void QRTOvuGeom_initialize(int& tally);

/// Undoes one QRTOvuGeom_initialize. The call that undoes the first takes 1 from `tally`.
OVR_EXPORT void QRTOvuGeom_finalize(int& tally);
