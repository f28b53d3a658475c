#pragma once

#include <cstddef>
#include <string>

// Texts are UTF-8, but a stored text may hold any bytes. A byte that belongs to no valid character is handled
// as a character of its own, above every real one.

/// What a lone byte is given as: this, less 0x80, plus the byte. The low 16 bits are the form in which Python
/// writes such a byte, 0xDC80 to 0xDCFF.
inline constexpr char32_t cmd_LoneByte = 0x40DC80;

/// The character that begins at `position`, which moves behind it; there must be one.
char32_t cmd_NextCharacter(const std::string& text, std::size_t& position);

/// Appends the character; a lone byte as the byte.
void cmd_AppendCharacter(std::string& text, char32_t character);

/// Whether a character begins at `position`, or the text ends there.
inline bool cmd_IsCharacterStart(const std::string& text, std::size_t position)
{
    return position >= text.size() || (static_cast<unsigned char>(text[position]) & 0xC0) != 0x80;
}
