#pragma once

#include "mem_AllocationOperators.h"
#include "omu_EnumTable.h"
#include "omu_PrimEnumBase.h"

#include <array>

/// A value of the enumeration `E` as a scripting primitive: its text and its integer always agree. It exists
/// only while a value is written, read, checked or handed to a script; objects keep the plain integer. The
/// second argument is 1 for every enumeration.
template <class E, int N>
class omu_PrimEnum : public omu_PrimEnumBase
{
public:
    /// By value; throws `nex_CmdException<atr_String, 2>` when the table has no such value.
    explicit omu_PrimEnum(E enumValue)
    {
        if (SetValue(enumValue))
            return;
        RaiseNotAllowed("omu_PrimEnum(ENUMTYPE) - Enum value not allowed: %d  Permissible: %s",
                        static_cast<int>(enumValue));
    }

    /// By name; throws the same when the table has no such name.
    explicit omu_PrimEnum(const cow_String& text)
    {
        TakeText(text, "omu_PrimEnum(const cow_String&) - str not allowed: %s  Permissible: %s");
    }

    /// By the other's text, whatever its enumeration; throws the same when the table has no such name.
    explicit omu_PrimEnum(const omu_PrimEnumBase& other)
    {
        TakeText(other.GetString(), "omu_PrimEnum(const omu_PrimEnumBase&) - str not allowed: %s");
    }

    /// From a record; throws the same when the stored text is not in the table.
    explicit omu_PrimEnum(const cls_ReadVisitor& visitor) : omu_PrimEnumBase(visitor)
    {
        TakeText(GetString(), "omu_PrimEnum(const cls_ReadVisitor&) - str not allowed: %s  Permissible: %s");
    }

    omu_PrimEnum(const omu_PrimEnum&) = default;
    omu_PrimEnum& operator=(const omu_PrimEnum&) = default;
    ~omu_PrimEnum() override = default;

    /// A new object with the same fields, owned by the caller.
    omu_PrimEnum* Copy() const override { return new omu_PrimEnum(*this); }

    /// True and changes the object if the table has the text; false and leaves it alone otherwise.
    bool SetValue(const char* text) override { return TakeRow(Table().FindName(text)); }

    /// The same by value.
    bool SetValue(E enumValue) { return TakeRow(Table().FindValue(static_cast<int>(enumValue))); }

    E Value() const { return static_cast<E>(value); }

    cow_Map<cow_String, unsigned> PermissibleValues() const override
    {
        cow_Map<cow_String, unsigned> values;
        for (const omu_EnumEntry* row = table; row->name; ++row)
            values.Insert(row->name, static_cast<unsigned>(row->value));
        return values;
    }

    /// The row's name. The row is not checked.
    static const char* Name(int row) { return table[row].name; }

    /// The row's value. The row is not checked.
    static int Value(int row) { return table[row].value; }

    /// The table without its type.
    static const omu_EnumTable& Table()
    {
        static constexpr omu_EnumTable whole{EnumName(), table, static_cast<int>(rows), RaiseValue,
                                             RaiseText};
        return whole;
    }

protected:
    cow_String NamesInOrder() const override { return omu_NamesOf(Table()); }

private:
    static constexpr std::string_view source = omu_EnumText(E{});
    static constexpr std::size_t rows = omu_detail::CountRows(source);

    static constexpr std::array<char, source.size() + 1> MakeNames()
    {
        std::array<char, source.size() + 1> names{};
        for (std::size_t i = 0; i < source.size(); ++i)
            names[i] = omu_detail::IsNameCharacter(source[i]) ? source[i] : '\0';
        return names;
    }

    static constexpr std::array<char, source.size() + 1> names = MakeNames();

    struct Rows
    {
        omu_EnumEntry entries[rows + 1];

        constexpr operator const omu_EnumEntry*() const { return entries; }
    };

    static constexpr Rows MakeRows()
    {
        Rows made{};
        omu_detail::EnumTextParser parser(source);
        for (std::size_t row = 0; row < rows; ++row)
        {
            parser.Next();
            made.entries[row] = {names.data() + (parser.Name().data() - source.data()), parser.Value()};
        }
        made.entries[rows] = {nullptr, 0};
        return made;
    }

    /// The enumeration's name as the compiler prints it.
    static constexpr std::string_view EnumName()
    {
        const std::string_view text = __PRETTY_FUNCTION__;
        const std::size_t begin = text.find("E = ") + 4;
        return text.substr(begin, text.find_first_of(";],", begin) - begin);
    }

    static void RaiseValue(int badValue) { static_cast<void>(omu_PrimEnum(static_cast<E>(badValue))); }

    static void RaiseText(const char* text) { static_cast<void>(omu_PrimEnum(cow_String(text))); }

    bool TakeRow(const omu_EnumEntry* row)
    {
        if (!row)
            return false;
        value = row->value;
        SetString(row->name);
        return true;
    }

    void TakeText(const cow_String& text, const char* message)
    {
        if (!SetValue(text.CString()))
            RaiseNotAllowed(message, text.CString());
    }

public:
    /// Rows of texts and values in the order of definition, ended by a null name.
    static constexpr Rows table = MakeRows();

private:
    int value = 0;
};
