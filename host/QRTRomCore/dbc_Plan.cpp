#include "dbc_Plan.h"

#include "rom_DatabaseRows.h"

#include <algorithm>
#include <cstdio>
#include <set>

namespace
{
std::string NameAndId(const rfm_TableInfo& table)
{
    char id[16];
    std::snprintf(id, sizeof id, "0x%X", table.classId);
    return std::string(table.name.CString()) + " (" + id + ")";
}

/// Whether a table has any of the columns in which a form keeps an attribute.
bool HasColumnOf(const rfm_TableInfo& table, const dbc_Form& form, const rom_AttributePlan& attribute)
{
    const auto has = [&](int cell)
    {
        return std::any_of(table.columns.begin(), table.columns.end(),
                           [&](const rfm_Column& column) { return column.name == form.ColumnName(cell); });
    };
    return has(attribute.cell) || (attribute.type == cls_TypeObject && has(attribute.cell + 1));
}

std::vector<const rom_AttributePlan*> AttributesOf(const dbc_Form& form)
{
    std::vector<const rom_AttributePlan*> attributes;
    for (const rom_AttributePlan& attribute : form.Plan().Attributes())
        attributes.push_back(&attribute);
    return attributes;
}

/// The attribute whose first cell this is, or null.
const rom_AttributePlan* AttributeAt(const dbc_Form& form, int cell)
{
    const auto& attributes = form.Plan().Attributes();
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [cell](const rom_AttributePlan& each) { return each.cell == cell; });
    return found == attributes.end() ? nullptr : &*found;
}

/// Whether an attribute takes over all that one of the same name holds; `sources` as of `dbc_MatchColumns`.
/// Which classes an object may be of is tested with the references.
bool TakesOver(const rom_AttributePlan& attribute, const std::vector<int>& sources,
               const rom_AttributePlan& held)
{
    if (attribute.type != cls_TypeObject || held.type != cls_TypeObject)
        return attribute.type != cls_TypeObject && sources[static_cast<std::size_t>(attribute.cell)] >= 0;
    return attribute.collection == cls_CollectionNone || held.collection == cls_CollectionNone ||
           attribute.collection == held.collection;
}

std::string KindOf(const rom_AttributePlan& attribute)
{
    switch (attribute.type)
    {
    case cls_TypeInt:
    case cls_TypeIntSecond:
        return "an integer";
    case cls_TypeDouble:
        return "a real number";
    case cls_TypeText:
        return "a text";
    case cls_TypeBool:
        return "a truth value";
    case cls_TypeEnum:
        return "an enumeration";
    case cls_TypeObject:
        break;
    }
    return attribute.collection == cls_CollectionNone
               ? "an object"
               : "a collection of code " + std::to_string(attribute.collection);
}
} // namespace

dbc_Forms::dbc_Forms(const dbc_OldClasses& oldClasses, const cls_ClassRegistrar& currentClasses)
{
    for (const dbc_OldClasses::Entry& entry : oldClasses.Entries())
    {
        if (entry.form)
            Add(rom_ClassPlan::Of(*entry.form));
    }
    const auto addCurrent = [this](std::unique_ptr<rom_ClassPlan> plan)
    {
        const unsigned classId = plan->ClassId();
        const int version = plan->Table().version;
        Add(std::move(plan));
        current[classId] = Find(classId, version);
    };
    for (std::size_t i = 0; i < currentClasses.Count(); ++i)
        addCurrent(rom_ClassPlan::Of(*currentClasses.At(i)));
    addCurrent(rom_ClassPlan::Of(cls_ListTypeId));
    addCurrent(rom_ClassPlan::Of(cls_MapTypeId));
}

void dbc_Forms::Add(std::unique_ptr<rom_ClassPlan> plan)
{
    std::unique_ptr<dbc_Form>& place = forms[plan->ClassId()][plan->Table().version];
    place = std::make_unique<dbc_Form>(std::move(plan));
}

const dbc_Form* dbc_Forms::Find(unsigned classId, int version) const
{
    const auto versions = forms.find(classId);
    if (versions == forms.end())
        return nullptr;
    const auto found = versions->second.find(version);
    return found == versions->second.end() ? nullptr : found->second.get();
}

const dbc_Form* dbc_Forms::FormAt(unsigned classId, int version) const
{
    const auto versions = forms.find(classId);
    if (versions == forms.end())
        return nullptr;
    const auto after = versions->second.upper_bound(version);
    return after == versions->second.begin() ? nullptr : std::prev(after)->second.get();
}

const dbc_Form* dbc_Forms::FormAfter(unsigned classId, int version) const
{
    const auto versions = forms.find(classId);
    if (versions == forms.end())
        return nullptr;
    const auto after = versions->second.upper_bound(version);
    return after == versions->second.end() ? nullptr : after->second.get();
}

const dbc_Form* dbc_Forms::Current(unsigned classId) const
{
    const auto found = current.find(classId);
    return found == current.end() ? nullptr : found->second;
}

unsigned dbc_Forms::CurrentIdOf(const cow_String& name) const
{
    for (const auto& [classId, form] : current)
    {
        if (form->Name() == name)
            return classId;
    }
    return 0;
}

dbc_Plan::dbc_Plan(const rfm_Database& store, dbc_DatabaseConverter& converter,
                   const dbc_OldClasses& oldClasses)
    : store(store), converter(converter), forms(oldClasses, converter.OutputClasses())
{
    for (const dbc_OldClasses::Entry& entry : oldClasses.Entries())
    {
        if (entry.form)
            versions[{entry.form->ClassId(), entry.form->Version()}] = entry.version;
        for (const dbc_ClassConverter* step : entry.steps)
            steps[{step->ClassId(), step->FromVersion()}].push_back({entry.version, step});
    }
}

const dbc_Form& dbc_Plan::FormOf(const rfm_TableInfo& table) const
{
    const auto raise = [&](const std::string& message)
    { store.Raise(message, table.name, rom_StoreException::NoRow); };
    if (!forms.IsKnown(table.classId))
        raise("The table is of a class that this release does not know, " + NameAndId(table) +
              ", and an upgrade would lose it.");
    const dbc_Form* current = forms.Current(table.classId);
    if (current && table.version > current->Version())
        raise("The table was written by a newer release: it has version " + std::to_string(table.version) +
              ", and this release knows version " + std::to_string(current->Version()) + ".");
    const dbc_Form* form = forms.Find(table.classId, table.version);
    if (!form)
        raise("No release has stored the class " + NameAndId(table) + " with version " +
              std::to_string(table.version) + ".");
    return *form;
}

bool dbc_Plan::IsCurrent(const dbc_Form& form) const
{
    const dbc_Form* current = forms.Current(form.ClassId());
    return current && current->Version() == form.Version();
}

dbc_PlannedTable dbc_Plan::PlanTable(const rfm_TableInfo& table)
{
    const dbc_Form& form = FormOf(table);
    dbc_PlannedTable planned{&form, ChainFrom(form)};
    if (!IsCurrent(form))
        FitTo(table, planned);
    RequireKinds(planned.steps);
    rom_RequireForm(store, table, planned.form->Table());
    return planned;
}

/// Gives the table's form the attributes that the table has, and the forms on its way those that it has
/// before their time.
void dbc_Plan::FitTo(const rfm_TableInfo& table, dbc_PlannedTable& planned)
{
    std::vector<EarlyAttribute> early = EarlyAttributesOf(table, planned);
    std::vector<const rom_AttributePlan*> attributes = AttributesOf(*planned.form);
    std::erase_if(attributes, [&](const rom_AttributePlan* attribute)
                  { return !HasColumnOf(table, *planned.form, *attribute); });
    planned.form = FormWith(*planned.form, attributes, early);
    const dbc_Form* from = planned.form;
    for (std::size_t i = 0; i < planned.steps.size(); ++i)
    {
        dbc_PlannedStep& step = planned.steps[i];
        step.from = from;
        if (!step.to)
            return;
        std::erase_if(early, [i](const EarlyAttribute& each) { return each.owner == i; });
        step.to = FormWith(*step.to, AttributesOf(*step.to), early);
        from = step.to;
    }
}

/// An attribute belongs to the first form on the way that has one of its name.
std::vector<dbc_Plan::EarlyAttribute> dbc_Plan::EarlyAttributesOf(const rfm_TableInfo& table,
                                                                  const dbc_PlannedTable& planned)
{
    std::set<std::string_view> known;
    for (const rom_AttributePlan& attribute : planned.form->Plan().Attributes())
        known.insert(attribute.field.Name().View());
    std::vector<EarlyAttribute> early;
    for (std::size_t i = 0; i < planned.steps.size() && planned.steps[i].to; ++i)
    {
        const dbc_Form& form = *planned.steps[i].to;
        for (const rom_AttributePlan& attribute : form.Plan().Attributes())
        {
            const bool isNew = known.insert(attribute.field.Name().View()).second;
            if (isNew && HasColumnOf(table, form, attribute))
                early.push_back({&attribute, i});
        }
    }
    return early;
}

/// The form with these of its attributes, and early ones behind them.
const dbc_Form* dbc_Plan::FormWith(const dbc_Form& form,
                                   const std::vector<const rom_AttributePlan*>& attributes,
                                   const std::vector<EarlyAttribute>& early)
{
    if (attributes.size() == form.Plan().Attributes().size() && early.empty())
        return &form;
    auto description = std::make_unique<cls_ClassMetadata>(form.Name(), form.ClassId(), form.Version(),
                                                           nullptr, form.Table().baseClassId);
    const auto add = [&description](const rom_AttributePlan& attribute)
    { description->AddAttribute(attribute.field, attribute.type, attribute.typeId, attribute.collection); };
    for (const rom_AttributePlan* attribute : attributes)
        add(*attribute);
    for (const EarlyAttribute& each : early)
        add(*each.attribute);
    fittedForms.push_back(std::make_unique<dbc_Form>(std::move(description)));
    return fittedForms.back().get();
}

std::vector<dbc_PlannedStep> dbc_Plan::StepsFrom(const dbc_Form& start) const
{
    std::vector<dbc_PlannedStep> chain = ChainFrom(start);
    RequireKinds(chain);
    return chain;
}

void dbc_Plan::RequireKinds(const std::vector<dbc_PlannedStep>& chain) const
{
    for (const dbc_PlannedStep& step : chain)
    {
        const bool hasFunction =
            step.converter && (step.converter->ConversionFunction() || step.converter->FinalizeFunction());
        if (step.to && !hasFunction)
            RequireKinds(*step.from, *step.to);
    }
}

void dbc_Plan::RequireKinds(const dbc_Form& from, const dbc_Form& to) const
{
    const std::vector<int> sources = dbc_MatchColumns(from, to);
    for (const rom_AttributePlan& attribute : to.Plan().Attributes())
    {
        const dbc_Form::Field found = from.Find(attribute.field.Name().View());
        const rom_AttributePlan* held = found.cell < 0 ? nullptr : AttributeAt(from, found.cell);
        if (!held || TakesOver(attribute, sources, *held))
            continue;
        Raise(from,
              "The attribute holds " + KindOf(*held) + " at version " + std::to_string(from.Version()) +
                  " and " + KindOf(attribute) + " at version " + std::to_string(to.Version()) +
                  ", and no function converts it.",
              attribute.field.Name());
    }
}

std::vector<dbc_PlannedStep> dbc_Plan::ChainFrom(const dbc_Form& start) const
{
    std::vector<dbc_PlannedStep> chain;
    const dbc_Form* form = &start;
    while (form && !IsCurrent(*form))
    {
        const auto found = steps.find({form->ClassId(), form->Version()});
        if (found == steps.end())
        {
            if (!IsDeleted(form->ClassId()) && SuccessorOf(*form) == 0)
                Raise(*form, "There is no step from version " + std::to_string(form->Version()) + " on.");
            // The class ends without a step of its own.
            const auto version = versions.find({form->ClassId(), form->Version()});
            chain.push_back({form->Version() + 1, version == versions.end() ? nullptr : version->second,
                             nullptr, form, nullptr, SuccessorOf(*form)});
            break;
        }
        const Step& step = OnlyStep(*form, found->second);
        const dbc_Form* to = Destination(*form, *step.converter);
        chain.push_back({step.converter->TargetVersion(), step.version, step.converter, form, to,
                         to ? 0 : SuccessorOf(*form)});
        form = to;
    }
    return chain;
}

const dbc_Plan::Step& dbc_Plan::OnlyStep(const dbc_Form& form, const std::vector<Step>& found) const
{
    if (found.size() > 1)
        Raise(form, "There are two steps from version " + std::to_string(form.Version()) + ", to " +
                        std::to_string(found[0].converter->TargetVersion()) + " and to " +
                        std::to_string(found[1].converter->TargetVersion()) + ".");
    const dbc_ClassConverter& step = *found.front().converter;
    if (!(step.Name() == form.Name()))
        Raise(form, std::string("The step from version ") + std::to_string(form.Version()) +
                        " is declared for a class of the name " + step.Name().CString() + ".");
    return found.front();
}

/// The form in which a step leaves the table. A few steps name a version that is none of the class's: what
/// holds at that version is meant. A step to its own version leads to the form after it.
const dbc_Form* dbc_Plan::Destination(const dbc_Form& form, const dbc_ClassConverter& step) const
{
    const int target = step.TargetVersion();
    const auto raise = [&](const std::string& why)
    {
        Raise(form, "The step from version " + std::to_string(form.Version()) + " leads to version " +
                        std::to_string(target) + ", " + why + ".");
    };
    if (target < form.Version())
        raise("which is older");
    const dbc_Form* current = forms.Current(form.ClassId());
    if (current && target > current->Version())
        raise("which lies beyond the class's own version " + std::to_string(current->Version()));
    const dbc_Form* to = target == form.Version() ? forms.FormAfter(form.ClassId(), target)
                                                  : forms.FormAt(form.ClassId(), target);
    const bool leadsOn = to && to->Version() != form.Version();
    if (!leadsOn && !IsDeleted(form.ClassId()) && SuccessorOf(form) == 0)
        raise("at which the class has no other form");
    return leadsOn ? to : nullptr;
}

unsigned dbc_Plan::SuccessorOf(const dbc_Form& form) const
{
    const cow_String* newName = converter.ClassesToRename().ConstGet(form.Name());
    const unsigned successor = newName ? forms.CurrentIdOf(*newName) : 0;
    return successor == form.ClassId() ? 0 : successor;
}

bool dbc_Plan::IsDeleted(unsigned classId) const
{
    const cow_List<unsigned>& deleted = converter.ClassesToDelete();
    for (int i = 0; i < deleted.Count(); ++i)
    {
        if (deleted[i] == classId)
            return true;
    }
    return false;
}

void dbc_Plan::Raise(const dbc_Form& form, const std::string& message, const cow_String& field) const
{
    store.Raise("The table can't be upgraded. " + message, form.Name(), rom_StoreException::NoRow, field);
}
