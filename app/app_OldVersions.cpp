#include "app_OldVersions.h"

#include "dbc_OldClasses.h"

#include <set>

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace
{

std::string IdText(unsigned id)
{
    return fmt::format("0x{:X}", id);
}

const char* CollectionKind(cls_CollectionType code)
{
    switch (code)
    {
    case cls_CollectionListObj:
        return "list_object";
    case cls_CollectionMapString2Obj:
        return "map_object";
    case cls_CollectionMapInt2Obj:
        return "map_object_int";
    case cls_CollectionListBool:
        return "list_bool";
    case cls_CollectionListDouble:
        return "list_double";
    case cls_CollectionListInt:
        return "list_int";
    case cls_CollectionListText:
        return "list_string";
    case cls_CollectionMapString2Float:
        return "map_float";
    case cls_Collection2DArrayDouble:
        return "array2d";
    case cls_CollectionMapString2Array2D:
        return "map_array2d";
    case cls_CollectionNone:
        break;
    }
    return "object";
}

const char* KindOf(const cls_AttributeMetadata& attribute)
{
    switch (attribute.type)
    {
    case cls_TypeInt:
    case cls_TypeIntSecond:
        return "int";
    case cls_TypeDouble:
        return "double";
    case cls_TypeText:
        return "string";
    case cls_TypeBool:
        return "bool";
    case cls_TypeEnum:
        return "enum";
    case cls_TypeObject:
        break;
    }
    return CollectionKind(attribute.collectionType);
}

cls_Value ValueOf(const cls_AttributeMetadata& attribute)
{
    cls_Value::Object members;
    members.emplace_back("index", attribute.field.Index());
    members.emplace_back("name", attribute.field.Name().CString());
    members.emplace_back("kind", KindOf(attribute));
    members.emplace_back("code", static_cast<int>(attribute.type));
    if (attribute.type == cls_TypeObject)
    {
        members.emplace_back("typeId", IdText(attribute.typeId));
        members.emplace_back("collection", static_cast<int>(attribute.collectionType));
    }
    return members;
}

/// Null for an empty text.
cls_Value NameOrNull(const cow_String& name)
{
    return name.IsEmpty() ? cls_Value() : cls_Value(name.CString());
}

void AddStep(cls_Value::Object& members, const dbc_OldClasses::Entry& entry)
{
    if (entry.steps.empty())
    {
        const cls_Value none;
        members.emplace_back("next", none);
        members.emplace_back("conversion", none);
        return;
    }
    const dbc_ClassConverter& step = *entry.steps.front();
    members.emplace_back("next", step.TargetVersion());
    members.emplace_back("conversion", NameOrNull(step.ConversionName()));
    if (step.FinalizeFunction())
        members.emplace_back("finalizer", NameOrNull(step.FinalizeName()));
}

/// What becomes of a class that is no longer, which few of them are.
void AddFate(cls_Value::Object& members, const dbc_OldClasses::Entry& entry)
{
    dbc_DatabaseConverter converter;
    entry.version->ClassesToDelete(converter);
    entry.version->ClassesToRename(converter);
    if (converter.ClassesToDelete().Count() > 0)
        members.emplace_back("deleted", true);
    if (const cow_String* name = converter.ClassesToRename().ConstGet(entry.form->Name()))
        members.emplace_back("renamed", name->CString());
}

cls_Value ValueOf(const dbc_OldClasses::Entry& entry)
{
    const cls_ClassMetadata& form = *entry.form;
    cls_Value::Array attributes;
    for (const cls_AttributeMetadata& attribute : form.Attributes())
        attributes.push_back(ValueOf(attribute));
    cls_Value::Object members{{"name", fmt::format("{}_{}", form.Name().CString(), form.Version())},
                              {"class", form.Name().CString()},
                              {"id", IdText(form.ClassId())},
                              {"version", form.Version()},
                              {"mask", static_cast<int>(entry.mask)}};
    AddStep(members, entry);
    AddFate(members, entry);
    members.emplace_back("attributes", std::move(attributes));
    return members;
}

} // namespace

cls_Value app_OldVersions()
{
    dbc_DatabaseConverter converter;
    const dbc_OldClasses classes(converter);
    cls_Value::Array versions;
    for (const dbc_OldClasses::Entry& entry : classes.Entries())
    {
        if (entry.form)
            versions.push_back(ValueOf(entry));
    }
    return versions;
}

std::string app_OldVersionsOf(unsigned classId)
{
    dbc_DatabaseConverter converter;
    const dbc_OldClasses classes(converter);
    std::set<int> versions;
    for (const dbc_OldClasses::Entry& entry : classes.Entries())
    {
        if (entry.form && entry.form->ClassId() == classId)
            versions.insert(entry.form->Version());
    }
    return fmt::format("{}", fmt::join(versions, " "));
}
