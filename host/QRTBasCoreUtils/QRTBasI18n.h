#pragma once

#include "cow_String.h"

/// Conversions between UTF-8, which all texts here are, and other encodings.
class OVR_EXPORT QRTBasI18n
{
public:
    /// `text` in the encoding of the locale in force (see setlocale). In the "C" locale, which has none of
    /// its own, and in a UTF-8 locale the text stays as it is.
    static cow_String ToLocale(const cow_String& text);

    /// `text` in the encoding of this name, as iconv knows it, which must hold ASCII as it is, as those of
    /// all locales do. A character that the encoding lacks becomes
    /// "?", and so does a byte that is not UTF-8. If the encoding itself is unknown, the text stays as it is.
    static cow_String ToEncoding(const cow_String& text, const char* encoding);
};
