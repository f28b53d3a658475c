#include "dbc_Form.h"

#include <bit>

namespace
{
dbc_Form::Use UseOf(cls_AttributeType type)
{
    switch (type)
    {
    case cls_TypeDouble:
        return dbc_Form::Use::Real;
    case cls_TypeText:
    case cls_TypeEnum:
        return dbc_Form::Use::Text;
    case cls_TypeBool:
        return dbc_Form::Use::Boolean;
    case cls_TypeObject:
        return dbc_Form::Use::ClassId;
    case cls_TypeInt:
    case cls_TypeIntSecond:
        break;
    }
    return dbc_Form::Use::Integer;
}
} // namespace

dbc_Form::dbc_Form(std::unique_ptr<rom_ClassPlan> newPlan) : plan(std::move(newPlan))
{
    if (plan->IsCollection())
        uses = {Use::Uid, Use::Integer, Use::Integer, Use::OptionalNumber, Use::OptionalNumber};
    else
        uses = {Use::Uid};
    if (plan->HasBase())
        uses.push_back(Use::Base);
    for (const rom_AttributePlan& attribute : plan->Attributes())
    {
        uses.push_back(::UseOf(attribute.type));
        if (attribute.type == cls_TypeObject)
            uses.push_back(Use::RowNumber);
    }
    entries.resize(std::bit_ceil((uses.size() + plan->Attributes().size()) * 2));
    for (int i = 0; i < CellCount(); ++i)
        Enter(ColumnName(i), {i, false});
    for (const rom_AttributePlan& attribute : plan->Attributes())
    {
        if (attribute.type == cls_TypeObject)
            Enter(attribute.field.Name(), {attribute.cell, true});
    }
}

dbc_Form::dbc_Form(std::unique_ptr<const cls_ClassMetadata> newDescription)
    : dbc_Form(rom_ClassPlan::Of(*newDescription))
{
    description = std::move(newDescription);
}

/// Names of one table differ in length and letters enough for so little to tell them apart.
std::size_t dbc_Form::Hash(std::string_view name)
{
    if (name.empty())
        return 0;
    const auto letter = [&name](std::size_t i) { return static_cast<unsigned char>(name[i]); };
    return name.size() * 31 + letter(0) * 7u + letter(name.size() / 2) * 131u + letter(name.size() - 1) * 17u;
}

void dbc_Form::Enter(const cow_String& name, Field field)
{
    if (Find(name.View()).cell >= 0)
        return;
    std::size_t place = Hash(name.View()) & (entries.size() - 1);
    while (entries[place].field.cell >= 0)
        place = (place + 1) & (entries.size() - 1);
    entries[place] = {name, field};
}

dbc_Form::Field dbc_Form::Find(std::string_view name) const
{
    std::size_t place = Hash(name) & (entries.size() - 1);
    while (entries[place].field.cell >= 0)
    {
        if (entries[place].name.View() == name)
            return entries[place].field;
        place = (place + 1) & (entries.size() - 1);
    }
    return {};
}

namespace
{
bool TakesOver(const dbc_Form& to, int target, const dbc_Form& from, int source)
{
    using Use = dbc_Form::Use;
    const Use taker = to.UseOf(target);
    const Use holder = from.UseOf(source);
    if (taker == Use::Boolean)
        return holder == Use::Boolean;
    if (taker == Use::Real)
        return holder == Use::Real || holder == Use::Integer || holder == Use::Boolean;
    const auto kindOf = [](const dbc_Form& form, int cell)
    { return form.Table().columns[static_cast<std::size_t>(cell)].kind; };
    return kindOf(from, source) == kindOf(to, target);
}
} // namespace

std::vector<int> dbc_MatchColumns(const dbc_Form& from, const dbc_Form& to)
{
    std::vector<int> sources;
    for (int i = 0; i < to.CellCount(); ++i)
    {
        const dbc_Form::Field found = from.Find(to.ColumnName(i).View());
        const bool fits = found.cell >= 0 && !found.isReference && TakesOver(to, i, from, found.cell);
        sources.push_back(fits ? found.cell : -1);
    }
    return sources;
}
