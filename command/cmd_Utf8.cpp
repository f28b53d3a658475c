#include "cmd_Utf8.h"

void cmd_AppendCharacter(std::string& text, char32_t character)
{
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
