#pragma once

#include <cstddef>
#include <string>

/// Appends the UTF-8 form of a character.
void cmd_AppendCharacter(std::string& text, char32_t character);

/// Whether a character begins at `position`, or the text ends there.
inline bool cmd_IsCharacterStart(const std::string& text, std::size_t position)
{
    return position >= text.size() || (static_cast<unsigned char>(text[position]) & 0xC0) != 0x80;
}
