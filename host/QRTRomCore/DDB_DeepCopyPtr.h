#pragma once

#include "ovr_Export.h"

/// A copy of an object of class `classId` that shares no storage with it, down to the last nested value,
/// under the same identities. The caller owns it. Throws if the class is unknown or can't be built from a
/// record.
OVR_EXPORT void* DDB_DeepCopyPtr(const void* object, unsigned classId);
