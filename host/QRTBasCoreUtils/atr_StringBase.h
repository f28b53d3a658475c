#pragma once

#include "mem_Allocation.h"
#include "ovr_Export.h"

#include <algorithm>
#include <compare>
#include <cstddef>
#include <cstring>
#include <string_view>
#include <utility>

/// What stands before the characters of a shared text, in one block with them.
struct atr_StringHeader
{
    int shares;   ///< how many strings hold the text; 1 means sole owner
    int length;   ///< characters, without the null that ends them
    int capacity; ///< characters that fit without a new block
};

/// A shared text: a pointer to its characters and one to its counted header. A null header means empty. A
/// copy costs one increment, and a change gives the changed string a block of its own first. The text is
/// UTF-8 by convention, always ends with a null and never contains one. Counts are plain integers: a text and
/// all its copies belong to one thread at a time.
///
/// Users have `cow_String` or `atr_String`; the base is what both can be taken as.
class OVR_EXPORT atr_StringBase
{
public:
    constexpr atr_StringBase() noexcept = default;

    /// A copy of `source`; null reads as the empty text. Throws std::bad_alloc, and std::length_error from
    /// 2^31 characters on.
    atr_StringBase(const char* source)
    {
        if (source != nullptr && *source != '\0')
            Store(source, std::strlen(source));
    }

    /// A copy of the first `count` characters of `source`, or of all before the first null among them.
    atr_StringBase(const char* source, std::size_t count)
    {
        if (source != nullptr && count != 0)
            Store(source, strnlen(source, count));
    }

    /// The number in decimal digits.
    explicit atr_StringBase(int number);
    /// The number in the shortest form that reads back as the same double; "nan", "inf" or "-inf" for others.
    explicit atr_StringBase(double number);

    atr_StringBase(const atr_StringBase& other) noexcept : text(other.text), header(other.header)
    {
        if (header != nullptr)
            ++header->shares;
    }

    atr_StringBase(atr_StringBase&& other) noexcept
        : text(std::exchange(other.text, emptyText)), header(std::exchange(other.header, nullptr))
    {}

    atr_StringBase& operator=(const atr_StringBase& other) noexcept
    {
        atr_StringBase(other).Swap(*this);
        return *this;
    }

    atr_StringBase& operator=(atr_StringBase&& other) noexcept
    {
        atr_StringBase(std::move(other)).Swap(*this);
        return *this;
    }

    ~atr_StringBase() { Release(); }

    /// Gives up this string's share, the last of which frees the text. The string is empty afterwards.
    void Delete() noexcept
    {
        Release();
        text = emptyText;
        header = nullptr;
    }

    /// Characters (bytes) of the text.
    int Length() const { return header == nullptr ? 0 : header->length; }
    bool IsEmpty() const { return header == nullptr; }

    /// The text, never null; stays in place until this string changes or goes.
    const char* CString() const { return text; }
    std::string_view View() const { return {text, static_cast<std::size_t>(Length())}; }

    /// How many strings hold this text; 0 for an empty one.
    int ShareCount() const { return header == nullptr ? 0 : header->shares; }

    /// Takes `count` characters from `position` on out of the text, or all from there; what lies outside the
    /// text is ignored.
    void Erase(int position = 0, int count = toEnd);

    /// Position of the first `sought` at or after `from`, or -1. An empty text is found everywhere.
    int Find(const char* sought, int from = 0) const;
    int Find(const atr_StringBase& sought, int from = 0) const { return Find(sought.CString(), from); }

    friend bool operator==(const atr_StringBase& left, const atr_StringBase& right) noexcept
    {
        return left.text == right.text || left.View() == right.View();
    }
    /// A null text equals the empty one.
    friend bool operator==(const atr_StringBase& left, const char* right) noexcept
    {
        return std::strcmp(left.text, right == nullptr ? emptyText : right) == 0;
    }
    /// The order of strcmp, byte by byte.
    friend std::strong_ordering operator<=>(const atr_StringBase& left, const atr_StringBase& right) noexcept
    {
        return std::strcmp(left.text, right.text) <=> 0;
    }
    friend std::strong_ordering operator<=>(const atr_StringBase& left, const char* right) noexcept
    {
        return std::strcmp(left.text, right == nullptr ? emptyText : right) <=> 0;
    }

protected:
    /// As a count: everything from the position on.
    static constexpr int toEnd = -1;

    void Append(const char* source, std::size_t count);
    void MakeUpper();
    /// Keeps `count` characters from `position` on, or all from there.
    void Cut(int position, int count);

    void Swap(atr_StringBase& other) noexcept
    {
        std::swap(text, other.text);
        std::swap(header, other.header);
    }

private:
    static constexpr char emptyText[1] = "";

    /// Gives an empty string a text of its own; an empty source leaves it empty.
    void Store(const char* source, std::size_t count);

    void Release() noexcept
    {
        if (header != nullptr && --header->shares == 0)
            mem_Free(header);
    }

    const char* text = emptyText;
    atr_StringHeader* header = nullptr;
};

/// The operations of a string class `S` that take or give texts of the class itself.
template <class S>
class OVR_EXPORT atr_StringOf : public atr_StringBase
{
public:
    using atr_StringBase::atr_StringBase;

    constexpr atr_StringOf() noexcept = default;
    /// Shares the text of a string of either class.
    explicit atr_StringOf(const atr_StringBase& other) noexcept : atr_StringBase(other) {}

    /// Takes a copy of `source`, which may be part of this very text; null reads as the empty text.
    S& operator=(const char* source)
    {
        atr_StringBase::operator=(atr_StringBase(source));
        return Self();
    }

    /// Puts a text behind this one; it may be part of this one.
    S& append(const char* source)
    {
        if (source != nullptr)
            Append(source, std::strlen(source));
        return Self();
    }

    /// The same with the first `count` characters, or those before the first null.
    S& append(const char* source, std::size_t count)
    {
        if (source != nullptr)
            Append(source, strnlen(source, count));
        return Self();
    }

    S& append(const atr_StringBase& source)
    {
        if (IsEmpty())
            atr_StringBase::operator=(source);
        else
            Append(source.CString(), static_cast<std::size_t>(source.Length()));
        return Self();
    }

    /// `count` characters from `position` on, or all from there; what lies outside the text is left out.
    S Substr(int position, int count = toEnd) const
    {
        S part(*this);
        part.Cut(position, count);
        return part;
    }

    /// The text with the letters a to z in upper case; all other characters stay, whatever the locale.
    S ToUpper() const
    {
        S upper(*this);
        upper.MakeUpper();
        return upper;
    }

private:
    S& Self() { return static_cast<S&>(*this); }
};
