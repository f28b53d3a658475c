#include "atr_String.h"

#include "QRTBasI18n.h"
#include "atr_FormatText.h"

void atr_String::ReplaceNonTranslated(int position, const atr_StringBase& value)
{
    atr_detail::FormatText format(View());
    while (format.Next())
    {
        if (format.Kind() != atr_detail::FormatText::Piece::Placeholder || format.Position() - 1 != position)
            continue;
        const int begin = static_cast<int>(format.Text().data() - CString());
        const int end = begin + static_cast<int>(format.Text().size());
        atr_String replaced = Substr(0, begin);
        replaced.append(value).append(CString() + end);
        *this = replaced;
        return;
    }
}

atr_String atr_String::UTF8ToLocale() const
{
    return atr_String(QRTBasI18n::ToLocale(cow_String(*this)));
}

atr_String atr_raw(const char* text, QRTBasStringMode)
{
    return atr_String(text);
}
