#pragma once

#include "ovr_Export.h"

/// Compares two texts in natural order: below, equal to or above 0 as `a` sorts before, with or after `b`. A
/// run of digits counts as one number, of any length; all else is compared byte by byte, and a text that ends
/// sorts before its continuations. Texts that differ in leading zeros alone sort as strcmp has them, so that
/// only equal texts compare equal. Null reads as the empty text.
OVR_EXPORT int strnatcmp(const char* a, const char* b);
