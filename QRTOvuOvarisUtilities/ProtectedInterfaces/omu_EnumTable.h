#pragma once

#include "cow_String.h"

#include <cstddef>
#include <string_view>

/// One row of an enumeration's table: the stored text and its value. A row with a null name ends the table.
struct omu_EnumEntry
{
    const char* name;
    int value;
};

/// An enumeration's table seen without its type, for code that serves every enumeration.
struct OVR_EXPORT omu_EnumTable
{
    /// The enumeration's name with its class, as in `kamC_Amplitude::TimeSpanEnm`; not ended by a null.
    std::string_view enumName;
    const omu_EnumEntry* rows;
    int rowCount;
    /// Throws as the enumeration does for a value that its table does not have.
    void (*raiseValue)(int value);
    /// Throws as the enumeration does for a text that its table does not have.
    void (*raiseText)(const char* text);

    /// The first row of this value, or null.
    const omu_EnumEntry* FindValue(int value) const;
    /// The first row of this very text, or null.
    const omu_EnumEntry* FindName(const char* text) const;
};

/// The texts of a table in its order, separated by ", ".
OVR_EXPORT cow_String omu_NamesOf(const omu_EnumTable& table);

/// Declares an enumeration at namespace scope together with its table. The values are written as in an
/// `enum`; their texts are their names, in the order written.
#define OMU_NAMESPACE_ENUM(Name, ...)                                                                        \
    enum class Name : int                                                                                    \
    {                                                                                                        \
        __VA_ARGS__                                                                                          \
    };                                                                                                       \
    constexpr const char* omu_EnumText(Name)                                                                 \
    {                                                                                                        \
        return #__VA_ARGS__;                                                                                 \
    }

/// The same inside a class that is not declared by the class pattern; argument-dependent look-up finds the
/// text.
#define OMU_MEMBER_ENUM(Name, ...)                                                                           \
    enum class Name : int                                                                                    \
    {                                                                                                        \
        __VA_ARGS__                                                                                          \
    };                                                                                                       \
    friend constexpr const char* omu_EnumText(Name)                                                          \
    {                                                                                                        \
        return #__VA_ARGS__;                                                                                 \
    }

namespace omu_detail
{

constexpr bool IsNameCharacter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

/// Reads a list such as "STEP = 0, TOTAL = 1" one row at a time; a row without a value takes the value after
/// that of the row before it.
class EnumTextParser
{
public:
    constexpr explicit EnumTextParser(std::string_view text) : text(text) {}

    /// Takes the next row; false at the end.
    constexpr bool Next()
    {
        SkipTo(true);
        if (position == text.size())
            return false;
        const std::size_t begin = position;
        SkipTo(false);
        name = text.substr(begin, position - begin);
        SkipBlanks();
        if (position < text.size() && text[position] == '=')
            ReadValue();
        else
            ++value;
        return true;
    }

    constexpr std::string_view Name() const { return name; }

    constexpr int Value() const { return value; }

private:
    constexpr void SkipTo(bool nameCharacter)
    {
        while (position < text.size() && IsNameCharacter(text[position]) != nameCharacter)
            ++position;
    }

    constexpr void SkipBlanks()
    {
        while (position < text.size() && text[position] == ' ')
            ++position;
    }

    constexpr void ReadValue()
    {
        ++position;
        SkipBlanks();
        const bool negative = text[position] == '-';
        if (negative)
            ++position;
        int number = 0;
        for (; position < text.size() && text[position] >= '0' && text[position] <= '9'; ++position)
            number = number * 10 + (text[position] - '0');
        value = negative ? -number : number;
    }

    std::string_view text;
    std::size_t position = 0;
    std::string_view name;
    int value = -1;
};

constexpr std::size_t CountRows(std::string_view text)
{
    EnumTextParser parser(text);
    std::size_t rows = 0;
    while (parser.Next())
        ++rows;
    return rows;
}

} // namespace omu_detail
