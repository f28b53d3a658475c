#pragma once

#include "atr_String.h"

#include <utility>
#include <vector>

/// A message that may be translated and is then filled in. The translation in force when the message is made
/// is used for good.
///
/// Placeholders are "%s" and "%d", counted from 1 in their order, or "%2$s" and "%2$d" with the position
/// written out, as a translation needs that puts them in another order. Plain ones are counted among
/// themselves.
class OVR_EXPORT atr_translate
{
public:
    /// Looks `text` up in the catalogue installed; null reads as the empty text.
    atr_translate(const char* text, QRTBasStringMode mode);
    atr_translate(const atr_translate&) = delete;
    atr_translate& operator=(const atr_translate&) = delete;
    ~atr_translate();

    /// The finished text: each placeholder that has a value is replaced by it, the others stand as they are,
    /// and
    /// "%%" becomes a percent sign. A value is put in as it is, whatever percent signs it holds.
    atr_String Result(QRTBasStringMode mode) const;

private:
    friend void atr_SubstituteFormat(atr_translate& message, int position, int value, QRTBasStringMode mode);
    friend void atr_SubstituteFormat(atr_translate& message, int position, const char* value,
                                     QRTBasStringMode mode);

    void Substitute(int position, const atr_String& value);
    const atr_String* Find(int position) const;

    atr_String text;
    std::vector<std::pair<int, atr_String>> values;
};

/// Fills the placeholder at `position`, from 1 on, with the number. A position that the text does not have is
/// ignored; the last of several values for one position holds.
OVR_EXPORT void atr_SubstituteFormat(atr_translate& message, int position, int value, QRTBasStringMode mode);
/// The same with a text, which is copied; null reads as the empty text.
OVR_EXPORT void atr_SubstituteFormat(atr_translate& message, int position, const char* value,
                                     QRTBasStringMode mode);
