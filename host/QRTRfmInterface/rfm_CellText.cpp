#include "rfm_CellText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

namespace
{
constexpr char hexDigits[] = "0123456789abcdef";
constexpr std::uint64_t usualNaN = 0x7FF8000000000000u;

std::string Hex(std::uint64_t number, int digits)
{
    std::string text(static_cast<std::size_t>(digits), '0');
    for (auto letter = text.rbegin(); letter != text.rend(); ++letter, number >>= 4)
        *letter = hexDigits[number & 0xF];
    return text;
}

std::string TextOfBlob(std::string_view bytes)
{
    std::string text = "x'";
    for (const char byte : bytes)
        text += Hex(static_cast<unsigned char>(byte), 2);
    return text + '\'';
}

/// A whole number, lowest byte first.
template <class T>
T NumberAt(const char* bytes)
{
    T number = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        number |= static_cast<T>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    return number;
}

double DoubleAt(const char* bytes)
{
    return std::bit_cast<double>(NumberAt<std::uint64_t>(bytes));
}

/// Bytes of the character of UTF-8 at the front, 0 if there is none.
std::size_t CharacterLength(std::string_view text)
{
    struct Form
    {
        unsigned char mask;
        unsigned char lead;
        std::uint32_t least; ///< lower ones have a shorter form
    };
    constexpr std::array<Form, 4> forms{
        {{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};
    const auto first = static_cast<unsigned char>(text[0]);
    for (std::size_t more = 0; more < forms.size(); ++more)
    {
        const Form& form = forms[more];
        if ((first & form.mask) != form.lead)
            continue;
        if (text.size() <= more)
            return 0;
        std::uint32_t code = first & static_cast<unsigned char>(~form.mask);
        for (std::size_t i = 1; i <= more; ++i)
        {
            const auto next = static_cast<unsigned char>(text[i]);
            if ((next & 0xC0) != 0x80)
                return 0;
            code = code << 6 | (next & 0x3F);
        }
        const bool isSurrogate = code >= 0xD800 && code <= 0xDFFF;
        return code < form.least || code > 0x10FFFF || isSurrogate ? 0 : more + 1;
    }
    return 0;
}

/// The characters that have an escape of their own.
const char* Escape(char letter)
{
    switch (letter)
    {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return nullptr;
    }
}

bool IsControl(char letter)
{
    const auto code = static_cast<unsigned char>(letter);
    return code < 0x20 || code == 0x7F;
}

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

/// Takes digits off the front; false if there are none.
bool TakeDigits(std::string_view& text)
{
    const std::size_t before = text.size();
    while (!text.empty() && IsDigit(text[0]))
        text.remove_prefix(1);
    return text.size() < before;
}

bool TakeOneOf(std::string_view& text, std::string_view letters)
{
    if (text.empty() || letters.find(text[0]) == std::string_view::npos)
        return false;
    text.remove_prefix(1);
    return true;
}

std::string TextOfNumber(std::int64_t type, const char* bytes)
{
    switch (type)
    {
    case rfm_TypeBool:
        return *bytes == 0 ? "0" : "1";
    case rfm_TypeInt:
        return std::to_string(static_cast<std::int32_t>(NumberAt<std::uint32_t>(bytes)));
    default:
    {
        std::string text = rfm_TextOfReal(DoubleAt(bytes));
        // The type says that these are reals.
        if (text.ends_with(".0") && text != "-0.0")
            text.resize(text.size() - 2);
        return text;
    }
    }
}

bool AreNumbers(std::int64_t type, std::int64_t length, std::string_view bytes)
{
    const auto size = static_cast<std::size_t>(rfm_SizeOf(type));
    if (size == 0 || length < 0 || bytes.size() % size != 0 ||
        bytes.size() / size != static_cast<std::size_t>(length))
        return false;
    return type != rfm_TypeBool || bytes.find_first_not_of(std::string_view("\0\1", 2)) == std::string::npos;
}
} // namespace

std::string rfm_TextOfReal(double value)
{
    if (std::isnan(value))
    {
        const auto bits = std::bit_cast<std::uint64_t>(value);
        return bits == usualNaN ? "NaN" : "NaN(" + Hex(bits, 16) + ')';
    }
    if (std::isinf(value))
        return value < 0.0 ? "-Infinity" : "Infinity";
    char letters[32];
    const std::to_chars_result end = std::to_chars(std::begin(letters), std::end(letters), value);
    std::string text(letters, end.ptr);
    if (text.find_first_of(".e") == std::string::npos)
        text += ".0";
    return text;
}

std::string rfm_InQuotes(std::string_view text)
{
    std::string quoted = "\"";
    while (!text.empty())
    {
        const std::size_t length = CharacterLength(text);
        if (const char* escape = Escape(text[0]))
            quoted += escape;
        else if (length == 0 || IsControl(text[0]))
            quoted += "\\x" + Hex(static_cast<unsigned char>(text[0]), 2);
        else
            quoted += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return quoted + '"';
}

std::string rfm_TextOf(const rfm_Cell& cell, rfm_ColumnKind kind)
{
    switch (cell.kind)
    {
    case rfm_CellKind::Integer:
        return std::to_string(cell.integer);
    case rfm_CellKind::Real:
        return rfm_TextOfReal(cell.real);
    case rfm_CellKind::Text:
        return rfm_InQuotes(cell.View());
    case rfm_CellKind::Blob:
        if (kind == rfm_ColumnKind::Real && cell.size == sizeof(double) &&
            rfm_NeedsBits(DoubleAt(cell.bytes)))
            return rfm_TextOfReal(DoubleAt(cell.bytes));
        return TextOfBlob(cell.View());
    case rfm_CellKind::Null:
    case rfm_CellKind::Unset:
        break;
    }
    return "-";
}

std::string rfm_TextOfNumbers(std::int64_t type, std::int64_t length, std::string_view bytes)
{
    if (!AreNumbers(type, length, bytes))
        return "";
    const auto size = static_cast<std::size_t>(rfm_SizeOf(type));
    std::string text = "[";
    for (std::size_t at = 0; at < bytes.size(); at += size)
        text += (at == 0 ? "" : ", ") + TextOfNumber(type, bytes.data() + at);
    return text + ']';
}

bool rfm_LooksNumeric(std::string_view text)
{
    constexpr std::string_view blanks = " \t\n\v\f\r";
    while (TakeOneOf(text, blanks))
    {}
    while (!text.empty() && blanks.find(text.back()) != std::string_view::npos)
        text.remove_suffix(1);
    TakeOneOf(text, "+-");
    const bool hasWhole = TakeDigits(text);
    const bool hasFraction = TakeOneOf(text, ".") && TakeDigits(text);
    if (!hasWhole && !hasFraction)
        return false;
    if (TakeOneOf(text, "eE"))
    {
        TakeOneOf(text, "+-");
        if (!TakeDigits(text))
            return false;
    }
    return text.empty();
}

std::string rfm_TextOfClassId(std::int64_t id)
{
    if (id < 0 || id > std::numeric_limits<std::uint32_t>::max())
        return std::to_string(id);
    char letters[16];
    const std::to_chars_result end =
        std::to_chars(std::begin(letters), std::end(letters), static_cast<std::uint32_t>(id), 16);
    std::string text = "0x";
    for (const char* letter = letters; letter != end.ptr; ++letter)
        text += static_cast<char>(*letter >= 'a' ? *letter - 'a' + 'A' : *letter);
    return text;
}
