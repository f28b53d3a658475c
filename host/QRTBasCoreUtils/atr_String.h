#pragma once

#include "QRTBasStringMode.h"
#include "atr_StringBase.h"
#include "cow_COW.h"

/// A text for people: a message or a label, in the language in force.
class OVR_EXPORT atr_String : public atr_StringOf<atr_String>
{
public:
    using atr_StringOf<atr_String>::atr_StringOf;
    using atr_StringOf<atr_String>::operator=;

    constexpr atr_String() noexcept = default;

    /// Puts `value` in place of the placeholder ("%s" or "%d") number `position`, counted from 0 among those
    /// that the text has now. "%%" is no placeholder and stays. Without such a placeholder nothing changes.
    void ReplaceNonTranslated(int position, const atr_StringBase& value);

    /// The text, which is UTF-8, in the encoding of the locale in force; see QRTBasI18n::ToEncoding.
    atr_String UTF8ToLocale() const;
};

template <>
inline constexpr bool cow_IsRelocatable<atr_String> = true;

/// A fixed text that is not to be translated, as it stands.
OVR_EXPORT atr_String atr_raw(const char* text, QRTBasStringMode mode);
