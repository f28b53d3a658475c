#include "atr_translate.h"

#include "atr_Catalogue.h"
#include "atr_FormatText.h"

#include <algorithm>

atr_translate::atr_translate(const char* source, QRTBasStringMode) : text(source)
{
    const atr_Catalogue* catalogue = atr_getCatalogue();
    if (catalogue == nullptr || text.IsEmpty())
        return;
    if (const char* translated = catalogue->Lookup(source))
        text = translated;
}

atr_translate::~atr_translate() = default;

atr_String atr_translate::Result(QRTBasStringMode) const
{
    // Most texts have nothing to fill in and are handed on as they are.
    if (text.Find("%") < 0)
        return text;
    atr_String result;
    atr_detail::FormatText format(text.View());
    while (format.Next())
    {
        using Piece = atr_detail::FormatText::Piece;
        const atr_String* value = format.Kind() == Piece::Placeholder ? Find(format.Position()) : nullptr;
        if (value != nullptr)
            result.append(*value);
        else if (format.Kind() == Piece::Percent)
            result.append("%");
        else
            result.append(format.Text().data(), format.Text().size());
    }
    return result;
}

void atr_translate::Substitute(int position, const atr_String& value)
{
    values.emplace_back(position, value);
}

const atr_String* atr_translate::Find(int position) const
{
    const auto found = std::find_if(values.rbegin(), values.rend(),
                                    [position](const auto& value) { return value.first == position; });
    return found == values.rend() ? nullptr : &found->second;
}

void atr_SubstituteFormat(atr_translate& message, int position, int value, QRTBasStringMode)
{
    message.Substitute(position, atr_String(value));
}

void atr_SubstituteFormat(atr_translate& message, int position, const char* value, QRTBasStringMode)
{
    message.Substitute(position, atr_String(value));
}
