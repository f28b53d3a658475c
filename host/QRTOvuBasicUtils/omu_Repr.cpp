#include "omu_Repr.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

/// Bytes of the UTF-8 character at the begin of `text`, or 0 if there is none.
std::size_t LengthOfCharacter(std::string_view text)
{
    const auto byte = [text](std::size_t i)
    { return i < text.size() ? static_cast<unsigned char>(text[i]) : 0u; };
    const auto continues = [&byte](std::size_t i) { return (byte(i) & 0xC0u) == 0x80u; };
    const unsigned first = byte(0);
    if (first < 0x80u)
        return 1;
    if (first >= 0xC2u && first < 0xE0u)
        return continues(1) ? 2 : 0;
    if (first >= 0xE0u && first < 0xF0u)
    {
        const bool overlong = first == 0xE0u && byte(1) < 0xA0u;
        const bool surrogate = first == 0xEDu && byte(1) >= 0xA0u;
        return continues(1) && continues(2) && !overlong && !surrogate ? 3 : 0;
    }
    if (first >= 0xF0u && first < 0xF5u)
    {
        const bool overlong = first == 0xF0u && byte(1) < 0x90u;
        const bool beyond = first == 0xF4u && byte(1) >= 0x90u;
        return continues(1) && continues(2) && continues(3) && !overlong && !beyond ? 4 : 0;
    }
    return 0;
}

void AppendEscape(std::string& out, const char* format, unsigned value)
{
    char escape[8];
    std::snprintf(escape, sizeof escape, format, value);
    out += escape;
}

void AppendPlain(std::string& out, char c, char quote)
{
    if (c == quote || c == '\\')
    {
        out += '\\';
        out += c;
    }
    else if (c == '\n')
        out += "\\n";
    else if (c == '\r')
        out += "\\r";
    else if (c == '\t')
        out += "\\t";
    else if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
        AppendEscape(out, "\\x%02x", static_cast<unsigned char>(c));
    else
        out += c;
}

char32_t CodeOf(std::string_view character)
{
    const auto byte = [character](std::size_t i) { return static_cast<unsigned char>(character[i]); };
    char32_t code = byte(0) & (0xFFu >> (character.size() + 1));
    for (std::size_t i = 1; i < character.size(); ++i)
        code = (code << 6) | (byte(i) & 0x3Fu);
    return code;
}

/// A character beyond ASCII: itself, but for blanks, invisible characters and ends of lines, which some
/// reader of the text would take for what they are not.
void AppendBeyondAscii(std::string& out, std::string_view character)
{
    const char32_t code = CodeOf(character);
    if (code <= 0xA0 || code == 0xAD)
        AppendEscape(out, "\\x%02x", code);
    else if (code == 0x2028 || code == 0x2029)
        AppendEscape(out, "\\u%04x", code);
    else
        out.append(character);
}

cow_String Quoted(std::string_view text, char quote)
{
    std::string out(1, quote);
    while (!text.empty())
    {
        const std::size_t length = LengthOfCharacter(text);
        if (length == 1)
            AppendPlain(out, text.front(), quote);
        else if (length == 0)
            AppendEscape(out, "\\udc%02x", static_cast<unsigned char>(text.front()));
        else
            AppendBeyondAscii(out, text.substr(0, length));
        text.remove_prefix(length == 0 ? 1 : length);
    }
    out += quote;
    return cow_String(out.c_str());
}

/// Digits and exponent put together as Python does: plain from 1e-4 up to below 1e16.
std::string Laid(const std::string& digits, int exponent)
{
    const int count = static_cast<int>(digits.size());
    if (exponent < -4 || exponent >= 16)
    {
        std::string text = digits.substr(0, 1);
        if (count > 1)
            text += '.' + digits.substr(1);
        AppendEscape(text, "e%+03d", static_cast<unsigned>(exponent));
        return text;
    }
    if (exponent < 0)
        return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    if (count <= exponent + 1)
        return digits + std::string(static_cast<std::size_t>(exponent + 1 - count), '0') + ".0";
    const auto whole = static_cast<std::size_t>(exponent + 1);
    return digits.substr(0, whole) + '.' + digits.substr(whole);
}

std::string TextOfFinite(double number)
{
    char shortest[32];
    const auto end =
        std::to_chars(shortest, shortest + sizeof shortest, std::fabs(number), std::chars_format::scientific);
    const std::string text(shortest, end.ptr);
    const std::size_t mark = text.find('e');
    std::string digits = text.substr(0, 1);
    if (mark > 2)
        digits += text.substr(2, mark - 2);
    const int exponent = std::atoi(text.c_str() + mark + 1);
    return (std::signbit(number) ? "-" : "") + Laid(digits, exponent);
}

} // namespace

cow_String omu_TextOfDouble(double number)
{
    if (std::isnan(number))
        return "nan";
    if (std::isinf(number))
        return number > 0.0 ? "inf" : "-inf";
    return TextOfFinite(number).c_str();
}

cow_String omu_ReprOfDouble(double number)
{
    cow_String text = omu_TextOfDouble(number);
    if (std::isfinite(number))
        return text;
    return cow_String("float('").append(text).append("')");
}

cow_String omu_ReprOfText(const cow_String& text)
{
    const bool hasSingle = std::strchr(text.CString(), '\'') != nullptr;
    const bool hasDouble = std::strchr(text.CString(), '"') != nullptr;
    return Quoted(text.View(), hasSingle && !hasDouble ? '"' : '\'');
}

cow_String omu_QuotedText(const cow_String& text)
{
    return Quoted(text.View(), '"');
}
