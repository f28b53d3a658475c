#include "ddr_ShortcutBaseImpl.h"

#include "omu_Repr.h"

#include <algorithm>

namespace
{

bool NeedsEscape(char c)
{
    return c == '\'' || c == '\\' || static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

} // namespace

ddr_ShortcutBaseImpl::~ddr_ShortcutBaseImpl() = default;

cow_String ddr_ShortcutBaseImpl::PythonPath() const
{
    return Path();
}

cow_String ddr_ShortcutBaseImpl::KeyText(const cow_String& key, KeyForm form)
{
    const std::string_view text = key.View();
    const bool isPlain = form == KeyForm::Plain || std::none_of(text.begin(), text.end(), NeedsEscape);
    if (isPlain)
        return cow_String("['").append(key).append("']");
    return cow_String("[").append(omu_QuotedText(key)).append("]");
}
