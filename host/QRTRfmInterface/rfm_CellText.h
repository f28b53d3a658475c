#pragma once

#include "ovr_Export.h"
#include "rfm_Cell.h"
#include "rfm_TableInfo.h"
#include "rfm_Type.h"

#include <string>

// Cells as text that people read and write, and from which the very same cells come back: `-` for NULL, whole
// numbers, reals with a point or an exponent, "texts", x'00ff' for blobs.

/// A cell of a column of this kind.
OVR_EXPORT std::string rfm_TextOf(const rfm_Cell& cell, rfm_ColumnKind kind = rfm_ColumnKind::Any);

/// A real: the shortest number from which its bits come back; NaN with other bits than the usual ones names
/// them, as in NaN(7ff8000000000001).
OVR_EXPORT std::string rfm_TextOfReal(double value);

/// A text in quotes. Control characters and bytes that are no UTF-8 are escaped.
OVR_EXPORT std::string rfm_InQuotes(std::string_view text);

/// The stored bytes of an array as a list of its numbers; empty if they are not `length` numbers of a type
/// that there is.
OVR_EXPORT std::string rfm_TextOfNumbers(std::int64_t type, std::int64_t length, std::string_view bytes);

/// Whether SQLite takes a text for a number where a column is declared to hold numbers.
OVR_EXPORT bool rfm_LooksNumeric(std::string_view text);

/// Class ids are written in hexadecimal.
OVR_EXPORT std::string rfm_TextOfClassId(std::int64_t id);
