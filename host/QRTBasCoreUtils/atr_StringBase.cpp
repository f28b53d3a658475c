#include "atr_StringBase.h"

#include <charconv>
#include <climits>
#include <new>
#include <stdexcept>

namespace
{
constexpr std::size_t blockStep = 16;
constexpr std::size_t overhead = sizeof(atr_StringHeader) + 1;
constexpr std::size_t longest = INT_MAX - overhead - blockStep;

/// A header with room for `length` characters and a null behind it, held by one string.
atr_StringHeader* NewHeader(std::size_t length)
{
    if (length > longest)
        throw std::length_error("A text of 2^31 characters or more cannot be held.");
    const std::size_t bytes = (length + overhead + blockStep - 1) / blockStep * blockStep;
    return ::new (mem_OperatorNewThrow(bytes))
        atr_StringHeader{1, static_cast<int>(length), static_cast<int>(bytes - overhead)};
}

char* Characters(atr_StringHeader* header)
{
    return reinterpret_cast<char*>(header + 1);
}

template <class Number>
std::string_view Format(Number number, char (&buffer)[32])
{
    const std::to_chars_result result = std::to_chars(buffer, buffer + sizeof buffer, number);
    return {buffer, static_cast<std::size_t>(result.ptr - buffer)};
}
} // namespace

atr_StringBase::atr_StringBase(int number)
{
    char buffer[32];
    const std::string_view digits = Format(number, buffer);
    Store(digits.data(), digits.size());
}

atr_StringBase::atr_StringBase(double number)
{
    char buffer[32];
    const std::string_view digits = Format(number, buffer);
    // The sign of a NaN says nothing.
    if (number != number)
        Store("nan", 3);
    else
        Store(digits.data(), digits.size());
}

void atr_StringBase::Store(const char* source, std::size_t count)
{
    if (count == 0)
        return;
    header = NewHeader(count);
    char* characters = Characters(header);
    std::memcpy(characters, source, count);
    characters[count] = '\0';
    text = characters;
}

void atr_StringBase::Append(const char* source, std::size_t count)
{
    if (count == 0)
        return;
    const std::size_t length = static_cast<std::size_t>(Length());
    const std::size_t total = length + count;
    if (header != nullptr && header->shares == 1 && total <= static_cast<std::size_t>(header->capacity))
    {
        char* characters = Characters(header);
        std::memcpy(characters + length, source, count);
        characters[total] = '\0';
        header->length = static_cast<int>(total);
        return;
    }
    atr_StringBase grown;
    grown.header = NewHeader(std::max(total, std::min(2 * length, longest)));
    char* characters = Characters(grown.header);
    grown.text = characters;
    std::memcpy(characters, text, length);
    std::memcpy(characters + length, source, count);
    characters[total] = '\0';
    grown.header->length = static_cast<int>(total);
    Swap(grown);
}

void atr_StringBase::MakeUpper()
{
    const auto isLower = [](char c) { return c >= 'a' && c <= 'z'; };
    const std::string_view view = View();
    if (std::none_of(view.begin(), view.end(), isLower))
        return;
    atr_StringBase upper(text, view.size());
    char* characters = Characters(upper.header);
    std::transform(view.begin(), view.end(), characters,
                   [&](char c) { return isLower(c) ? static_cast<char>(c - 'a' + 'A') : c; });
    Swap(upper);
}

void atr_StringBase::Cut(int position, int count)
{
    const int begin = std::clamp(position, 0, Length());
    const int rest = Length() - begin;
    const int kept = count < 0 ? rest : std::min(count, rest);
    if (kept == Length())
        return;
    atr_StringBase(text + begin, static_cast<std::size_t>(kept)).Swap(*this);
}

void atr_StringBase::Erase(int position, int count)
{
    const int begin = std::clamp(position, 0, Length());
    const int rest = Length() - begin;
    const int gone = count < 0 ? rest : std::min(count, rest);
    if (gone == 0)
        return;
    const std::size_t head = static_cast<std::size_t>(begin);
    const std::size_t tail = static_cast<std::size_t>(rest - gone);
    atr_StringBase kept(text, head);
    kept.Append(text + begin + gone, tail);
    Swap(kept);
}

int atr_StringBase::Find(const char* sought, int from) const
{
    const std::string_view pattern = sought == nullptr ? std::string_view() : std::string_view(sought);
    const std::size_t position = View().find(pattern, static_cast<std::size_t>(std::max(from, 0)));
    return position == std::string_view::npos ? -1 : static_cast<int>(position);
}
