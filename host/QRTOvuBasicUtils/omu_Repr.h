#pragma once

#include "cow_String.h"
#include "ovr_Export.h"

/// A number as Python writes it: the shortest digits that read back as the same double, always with a point
/// or an exponent ("1.0", "1e-05", "1.5e+300"); "nan", "inf" and "-inf" for others.
OVR_EXPORT cow_String omu_TextOfDouble(double number);

/// The number as Python source text: as above, but float('nan') and its kin for what has no literal.
OVR_EXPORT cow_String omu_ReprOfDouble(double number);

/// A text as Python source text, in single quotes unless it has such quotes and no double ones. Control
/// characters, ends of lines and blanks beyond ASCII are escaped; other UTF-8 stays as it is, and a byte that
/// is not UTF-8 becomes the lone surrogate that Python puts in its place ("\udcff").
OVR_EXPORT cow_String omu_ReprOfText(const cow_String& text);

/// The same always in double quotes.
OVR_EXPORT cow_String omu_QuotedText(const cow_String& text);
