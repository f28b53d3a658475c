#include "rfm_TextLine.h"

#include "rom_StoreException.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>

namespace
{
constexpr std::string_view comment = "--";
/// What ends a number or word, beside blanks.
constexpr std::string_view delimiters = ":,]()";

bool IsNameLetter(char letter)
{
    return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
           (letter >= '0' && letter <= '9') || letter == '_' || letter == '#';
}

bool BeginsNumber(char letter)
{
    return letter == '-' || letter == 'I' || letter == 'N' || (letter >= '0' && letter <= '9');
}

/// Puts a number's bytes at the end, lowest first.
template <class T>
void AppendNumber(std::string& bytes, T number)
{
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}
} // namespace

rfm_TextLine::rfm_TextLine(std::string_view text, std::string source, int number)
    : text(text), source(std::move(source)), number(number)
{}

bool rfm_TextLine::IsPlainName(std::string_view name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), IsNameLetter);
}

std::size_t rfm_TextLine::Position()
{
    while (at < text.size() && IsBlank(text[at]))
        ++at;
    return at;
}

bool rfm_TextLine::AtEnd()
{
    return Position() == text.size() || text.substr(at).starts_with(comment);
}

char rfm_TextLine::Next()
{
    return AtEnd() ? '\0' : text[at];
}

bool rfm_TextLine::AtBoundary(std::size_t position) const
{
    return position >= text.size() || IsBlank(text[position]) ||
           delimiters.find(text[position]) != std::string_view::npos;
}

bool rfm_TextLine::Take(std::string_view word)
{
    if (AtEnd() || !text.substr(at).starts_with(word))
        return false;
    if (IsNameLetter(word.back()) && at + word.size() < text.size() && IsNameLetter(text[at + word.size()]))
        return false;
    at += word.size();
    return true;
}

void rfm_TextLine::Expect(std::string_view word)
{
    if (!Take(word))
        Raise("expected " + std::string(word));
}

void rfm_TextLine::ExpectEnd()
{
    if (!AtEnd())
        Raise("expected the end of the line");
}

std::string rfm_TextLine::TakeName()
{
    const std::size_t begin = Position();
    if (Next() == '"')
    {
        std::string name = TakeQuoted();
        if (name.empty() || name.find('\0') != std::string::npos)
            Raise("expected a name", begin);
        return name;
    }
    while (at < text.size() && IsNameLetter(text[at]))
        ++at;
    if (at == begin)
        Raise("expected a name");
    return std::string(text.substr(begin, at - begin));
}

std::int64_t rfm_TextLine::TakeInteger(const char* what, std::int64_t low, std::int64_t high)
{
    const std::size_t begin = Position();
    const rfm_Cell cell = BeginsNumber(Next()) ? TakeNumber() : rfm_Cell::Null();
    if (!cell.Is(rfm_CellKind::Integer) || cell.integer < low || cell.integer > high)
        Raise(std::string("expected ") + what, begin);
    return cell.integer;
}

rfm_Cell rfm_TextLine::TakeCell(std::string& bytes)
{
    const char next = Next();
    if (next == '"')
    {
        bytes = TakeQuoted();
        return rfm_Cell::Text(bytes);
    }
    if (text.substr(at).starts_with("x'"))
        return TakeBlob(bytes);
    if (next == '-' && AtBoundary(at + 1))
    {
        ++at;
        return rfm_Cell::Null();
    }
    if (!BeginsNumber(next))
        Raise("expected a value: a number, \"text\", x'00ff' or - for none");
    return TakeNumber();
}

std::string rfm_TextLine::TakeQuoted()
{
    const std::size_t begin = at++;
    std::string result;
    while (at < text.size() && text[at] != '"')
    {
        const char letter = text[at++];
        result += letter == '\\' ? TakeEscape() : letter;
    }
    if (at == text.size())
        Raise("the text that begins here has no end: expected \"", begin);
    ++at;
    return result;
}

char rfm_TextLine::TakeEscape()
{
    const std::size_t begin = at - 1;
    const char letter = at < text.size() ? text[at++] : '\0';
    switch (letter)
    {
    case '"':
    case '\\':
        return letter;
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case 'x':
    {
        const unsigned high = TakeHexDigit();
        return static_cast<char>(high << 4 | TakeHexDigit());
    }
    default:
        Raise("expected one of \\\" \\\\ \\n \\r \\t \\x00", begin);
    }
}

unsigned rfm_TextLine::TakeHexDigit()
{
    unsigned digit = 0;
    const char* const begin = text.data() + std::min(at, text.size());
    const char* const end = text.data() + std::min(at + 1, text.size());
    if (std::from_chars(begin, end, digit, 16).ptr == begin)
        Raise("expected a hexadecimal digit", at);
    ++at;
    return digit;
}

rfm_Cell rfm_TextLine::TakeBlob(std::string& bytes)
{
    const std::size_t begin = at;
    at += 2;
    bytes.clear();
    while (at < text.size() && text[at] != '\'')
    {
        const unsigned high = TakeHexDigit();
        bytes += static_cast<char>(high << 4 | TakeHexDigit());
    }
    if (at == text.size())
        Raise("the bytes that begin here have no end: expected '", begin);
    ++at;
    return rfm_Cell::Blob(bytes.data(), bytes.size());
}

rfm_Cell rfm_TextLine::TakeSpecialReal()
{
    if (Take("Infinity"))
        return rfm_Cell::Real(std::numeric_limits<double>::infinity());
    if (Take("-Infinity"))
        return rfm_Cell::Real(-std::numeric_limits<double>::infinity());
    return Take("NaN") ? TakeNaN() : rfm_Cell::Null();
}

std::string_view rfm_TextLine::Word()
{
    std::size_t end = Position();
    while (!AtBoundary(end))
        ++end;
    return text.substr(at, end - at);
}

rfm_Cell rfm_TextLine::TakeNumber()
{
    if (const rfm_Cell special = TakeSpecialReal(); !special.IsNull())
        return special;
    const std::string_view word = Word();
    const bool isHex = word.starts_with("0x") || word.starts_with("0X");
    if (!isHex && word.find_first_of(".eE") != std::string_view::npos)
        return rfm_Cell::Real(TakeReal());
    std::int64_t value = 0;
    const char* const first = word.data() + (isHex ? 2 : 0);
    const char* const last = word.data() + word.size();
    const std::from_chars_result result = std::from_chars(first, last, value, isHex ? 16 : 10);
    if (result.ec == std::errc::result_out_of_range)
        Raise("expected a whole number of 64 bits");
    if (result.ec != std::errc() || result.ptr != last)
        Raise("expected a number");
    at += word.size();
    return rfm_Cell::Integer(value);
}

rfm_Cell rfm_TextLine::TakeNaN()
{
    if (at == text.size() || text[at] != '(')
        return rfm_Cell::Real(std::bit_cast<double>(std::uint64_t{0x7FF8000000000000u}));
    const std::size_t begin = at++;
    std::uint64_t bits = 0;
    for (int i = 0; i < 16; ++i)
        bits = bits << 4 | TakeHexDigit();
    const double value = std::bit_cast<double>(bits);
    if (!std::isnan(value))
        Raise("expected the bits of a NaN", begin);
    Expect(")");
    return rfm_Cell::Real(value);
}

double rfm_TextLine::TakeReal()
{
    const std::string_view word = Word();
    const char* const end = word.data() + word.size();
    double value = 0.0;
    const std::from_chars_result result = std::from_chars(word.data(), end, value);
    if (result.ec == std::errc::result_out_of_range)
        Raise("expected a number that a double can hold");
    // The words for numbers that are none are others here.
    if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value))
        Raise("expected a number");
    at += word.size();
    return value;
}

rfm_Cell rfm_TextLine::TakeNumbers(rfm_Type type, std::string& bytes)
{
    bytes.clear();
    Expect("[");
    for (bool isFirst = true; !Take("]"); isFirst = false)
    {
        if (!isFirst)
            Expect(",");
        switch (type)
        {
        case rfm_TypeBool:
            bytes += static_cast<char>(TakeInteger("0 or 1", 0, 1));
            break;
        case rfm_TypeInt:
            AppendNumber(bytes, static_cast<std::uint32_t>(
                                    TakeInteger("a whole number of 32 bits", INT32_MIN, INT32_MAX)));
            break;
        case rfm_TypeDouble:
        {
            const rfm_Cell special = TakeSpecialReal();
            const double value = special.IsNull() ? TakeReal() : special.real;
            AppendNumber(bytes, std::bit_cast<std::uint64_t>(value));
            break;
        }
        }
    }
    return rfm_Cell::Blob(bytes.data(), bytes.size());
}

void rfm_TextLine::Raise(const std::string& message)
{
    Raise(message, Position());
}

void rfm_TextLine::Raise(const std::string& message, std::size_t position) const
{
    const auto isBegin = [](char letter) { return (letter & 0xC0) != 0x80; };
    const auto column =
        1 + std::count_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(position), isBegin);
    const std::string place = source + ':' + std::to_string(number) + ':' + std::to_string(column);
    rom_StoreException(place.c_str(), message.c_str()).Throw(__FILE__, __LINE__);
}
