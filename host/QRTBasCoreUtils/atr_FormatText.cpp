#include "atr_FormatText.h"

#include <charconv>

namespace
{
bool IsConversion(std::string_view text)
{
    return text.starts_with('s') || text.starts_with('d');
}
} // namespace

namespace atr_detail
{
bool FormatText::Next()
{
    if (rest.empty())
        return false;
    if (rest.starts_with("%%"))
        return Take(2, Piece::Percent);
    if (rest.starts_with('%') && TakePlaceholder())
        return true;
    const std::size_t end = rest.find('%', 1);
    return Take(end == std::string_view::npos ? rest.size() : end, Piece::Literal);
}

bool FormatText::TakePlaceholder()
{
    if (IsConversion(rest.substr(1)))
    {
        position = ++ordinal;
        return Take(2, Piece::Placeholder);
    }
    int number = 0;
    const char* begin = rest.data() + 1;
    const auto [end, error] = std::from_chars(begin, rest.data() + rest.size(), number);
    const std::string_view behind = rest.substr(static_cast<std::size_t>(end - rest.data()));
    if (error != std::errc() || number < 1 || !behind.starts_with('$') || !IsConversion(behind.substr(1)))
        return false;
    position = number;
    return Take(rest.size() - behind.size() + 2, Piece::Placeholder);
}

bool FormatText::Take(std::size_t size, Piece taken)
{
    piece = rest.substr(0, size);
    rest.remove_prefix(size);
    kind = taken;
    return true;
}
} // namespace atr_detail
