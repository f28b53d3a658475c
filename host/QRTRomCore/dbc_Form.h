#pragma once

#include "rfm_Cell.h"
#include "rom_ClassPlan.h"

#include <string_view>

/// One form of a class: its columns, and where in a row a field is found by its name.
class dbc_Form
{
public:
    /// What a cell is for.
    enum class Use : unsigned char
    {
        Uid,
        Base, ///< row of the base
        Integer,
        Boolean,
        Real,
        Text,
        ClassId,
        RowNumber,
        OptionalNumber ///< of a collection
    };

    struct Field
    {
        int cell = -1;            ///< -1 if there is no such field
        bool isReference = false; ///< the bare name of an object, whose class id the cell is
    };

    explicit dbc_Form(std::unique_ptr<rom_ClassPlan> plan);
    /// A form that no class has described: keeps its description.
    explicit dbc_Form(std::unique_ptr<const cls_ClassMetadata> description);

    const rom_ClassPlan& Plan() const { return *plan; }
    const rfm_TableInfo& Table() const { return plan->Table(); }
    unsigned ClassId() const { return Table().classId; }
    const cow_String& Name() const { return Table().name; }
    int Version() const { return Table().version; }
    int CellCount() const { return plan->CellCount(); }
    Use UseOf(int cell) const { return uses[static_cast<std::size_t>(cell)]; }
    const cow_String& ColumnName(int cell) const
    {
        return Table().columns[static_cast<std::size_t>(cell)].name;
    }

    Field Find(std::string_view name) const;

private:
    void Enter(const cow_String& name, Field field);
    static std::size_t Hash(std::string_view name);

    struct Entry
    {
        cow_String name;
        Field field;
    };

    std::unique_ptr<const cls_ClassMetadata> description; ///< null where the plan is of a class's own
    std::unique_ptr<rom_ClassPlan> plan;
    std::vector<Use> uses;
    std::vector<Entry> entries; ///< open addressing, a power of two
};

/// For each column of one form the column of the same name in another from which it takes values over: one of
/// its kind, or one whose values it can all hold. -1 for none.
std::vector<int> dbc_MatchColumns(const dbc_Form& from, const dbc_Form& to);

/// A cell as a column takes it over: an integer as a real number.
inline rfm_Cell dbc_TakenOver(const rfm_Cell& cell, dbc_Form::Use use)
{
    return use == dbc_Form::Use::Real ? rfm_AsReal(cell) : cell;
}
