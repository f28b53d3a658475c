#include "cmd_Utf8.h"

namespace
{

/// Length of the character that a first byte announces; 0 if none begins so.
std::size_t AnnouncedLength(unsigned char first)
{
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 0;
}

/// Overlong forms, halves of pairs and numbers past the last character are no UTF-8.
bool IsValid(char32_t character, std::size_t length)
{
    constexpr char32_t leastOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
    return character >= leastOfLength[length] && character <= 0x10FFFF &&
           (character < 0xD800 || character > 0xDFFF);
}

} // namespace

char32_t cmd_NextCharacter(const std::string& text, std::size_t& position)
{
    const auto first = static_cast<unsigned char>(text[position]);
    const char32_t lone = cmd_LoneByte - 0x80 + first;
    const std::size_t length = AnnouncedLength(first);
    const std::size_t begin = position++;
    if (length == 1)
        return first;
    if (length == 0 || begin + length > text.size())
        return lone;
    char32_t character = first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
    {
        const auto next = static_cast<unsigned char>(text[begin + i]);
        if ((next & 0xC0) != 0x80)
            return lone;
        character = (character << 6) | (next & 0x3Fu);
    }
    if (!IsValid(character, length))
        return lone;
    position = begin + length;
    return character;
}

void cmd_AppendCharacter(std::string& text, char32_t character)
{
    if (character >= cmd_LoneByte)
    {
        text += static_cast<char>(character & 0xFF);
        return;
    }
    if (character < 0x80)
    {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    text += static_cast<char>((0xFF00u >> (following + 1)) | (character >> (6 * following)));
    for (int i = following - 1; i >= 0; --i)
        text += static_cast<char>(0x80 | ((character >> (6 * i)) & 0x3F));
}
