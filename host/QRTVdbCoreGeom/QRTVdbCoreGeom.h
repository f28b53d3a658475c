#pragma once

#include "ovr_Export.h"

/// Brings up the model root and what it stands on: enters the type table and describes the classes. The first
/// call adds 1 to `tally`, later calls only count.
OVR_EXPORT void QRTVdbCoreGeom_initialize(int& tally);

/// Undoes one QRTVdbCoreGeom_initialize. The call that undoes the first takes 1 from `tally`.
OVR_EXPORT void QRTVdbCoreGeom_finalize(int& tally);
