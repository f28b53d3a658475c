#pragma once

#include "ovr_Export.h"

/// Seconds since some moment in the past, on a clock that is never set. Each call gives more than the one
/// before.
OVR_EXPORT double omi_gettimecounter();
