#pragma once

#include "ovr_Export.h"

/// Checks that an object of class `actual` can be taken as one of class `expected`: the ids are the same, or
/// the type table has `expected` as an ancestor of `actual`. Otherwise throws `nex_CmdException<atr_String,
/// 2>`, which names both classes and their ids. `file` (a constant text) and `line` are the place of the
/// call.
OVR_EXPORT void nex_canDynamicCastRef(unsigned expected, unsigned actual, const char* file, int line);
