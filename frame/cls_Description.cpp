#include "cls_Description.h"

#include "cls_MetadataRegistrar.h"
#include "typ_ArchCompTable.h"

#include <algorithm>
#include <utility>

cls_Description::cls_Description(const cls_ClassInfo& info) : info(info)
{
    int nextIndex = 0;
    for (int i = 0; i < info.entryCount; ++i)
    {
        const cls_Entry& entry = info.entries[i];
        switch (entry.sort)
        {
        case cls_Entry::Sort::Attribute:
        {
            const int index = entry.index == cls_Entry::NextIndex ? nextIndex : entry.index;
            nextIndex = index + 1;
            attributes.push_back({cls_FieldHandle(index, entry.name), entry.word, entry.kind, entry.member});
            break;
        }
        case cls_Entry::Sort::Word:
            words.push_back({entry.name, entry.word});
            break;
        case cls_Entry::Sort::Enum:
            enums.push_back(entry.enumTable());
            break;
        }
    }
}

cls_Description::~cls_Description() = default;

bool cls_Description::IsA(unsigned id) const
{
    for (const cls_Description* layer = this; layer; layer = layer->Base())
    {
        if (layer->Id() == id)
            return true;
    }
    return false;
}

const cls_Attribute* cls_Description::FindByName(const std::string& name) const
{
    for (const cls_Description* layer = this; layer; layer = layer->Base())
    {
        for (const cls_Attribute& attribute : layer->attributes)
        {
            if (name == attribute.field.Name().CString())
                return &attribute;
        }
    }
    return nullptr;
}

const cls_Attribute* cls_Description::FindByWord(const std::string& word) const
{
    for (const cls_Description* layer = this; layer; layer = layer->Base())
    {
        for (const cls_Attribute& attribute : layer->attributes)
        {
            if (word == attribute.word)
                return &attribute;
        }
    }
    return nullptr;
}

const char* cls_Description::FindWord(const std::string& name) const
{
    for (const cls_Description* layer = this; layer; layer = layer->Base())
    {
        for (const cls_Word& word : layer->words)
        {
            if (name == word.name)
                return word.word;
        }
    }
    return nullptr;
}

std::vector<const cls_Attribute*> cls_Description::AllAttributes() const
{
    std::vector<const cls_Attribute*> all;
    if (const cls_Description* base = Base())
        all = base->AllAttributes();
    for (const cls_Attribute& attribute : attributes)
        all.push_back(&attribute);
    return all;
}

void cls_Description::WriteAttributes(const void* object, const cls_WriteVisitor& visitor) const
{
    for (const cls_Attribute& attribute : attributes)
        attribute.kind->Write(attribute.Member(object), visitor, attribute.field);
}

void cls_Description::ReadAttributes(void* object, const cls_ReadVisitor& visitor) const
{
    for (const cls_Attribute& attribute : attributes)
        attribute.kind->Read(attribute.member(object), visitor, attribute.field);
}

void cls_Description::DescribeTo(cls_ClassMetadata& metadata) const
{
    for (const cls_Attribute& attribute : attributes)
    {
        const cls_Kind& kind = *attribute.kind;
        metadata.AddAttribute(attribute.field, kind.Type(), kind.TypeId(), kind.Collection());
    }
}

cls_Value cls_Description::Export(const void* object) const
{
    cls_Value::Object members;
    members.emplace_back("class", Name());
    for (const cls_Attribute* attribute : AllAttributes())
        members.emplace_back(attribute->field.Name().CString(),
                             attribute->kind->Export(attribute->Member(object)));
    return members;
}

void cls_Description::Import(void* object, const cls_Value& value) const
{
    const cls_Value::Object* members = value.AsObject();
    if (!members)
        cls_RaiseUnexpected("an object", value);
    for (const auto& [name, member] : *members)
    {
        if (name == "class")
            continue;
        const cls_Attribute* attribute = FindByName(name);
        if (!attribute)
            throw cls_ValueError(name, std::string("the class ") + Name() + " has no such attribute");
        try
        {
            attribute->kind->Import(attribute->member(object), member);
        }
        catch (const cls_ValueError& error)
        {
            throw error.Within(name);
        }
    }
}

cls_DescriptionRegistry::cls_DescriptionRegistry() = default;

cls_DescriptionRegistry::~cls_DescriptionRegistry() = default;

void cls_DescriptionRegistry::Add(const cls_Description& description)
{
    if (!byId.emplace(description.Id(), &description).second)
        return;
    byName.emplace(description.Name(), &description);
    all.push_back(&description);
}

namespace
{

/// A class is described when its metadata function runs, which the registrar puts off until somebody asks.
void RunMetadataFunctions()
{
    omi_Singleton<cls_MetadataRegistrar>::Instance()->Classes();
}

} // namespace

const cls_Description* cls_DescriptionRegistry::Find(unsigned id)
{
    RunMetadataFunctions();
    const auto found = byId.find(id);
    return found == byId.end() ? nullptr : found->second;
}

const cls_Description* cls_DescriptionRegistry::Find(const std::string& name)
{
    RunMetadataFunctions();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

const std::vector<const cls_Description*>& cls_DescriptionRegistry::All()
{
    RunMetadataFunctions();
    return all;
}

cls_DescriptionRegistry& cls_Descriptions()
{
    return *omi_Singleton<cls_DescriptionRegistry>::Instance();
}

cls_AnyObject::cls_AnyObject(const cls_Description& description, void* object)
    : description(description), object(object)
{}

cls_AnyObject::cls_AnyObject(cls_AnyObject&& other) noexcept
    : description(other.description), object(std::exchange(other.object, nullptr))
{}

cls_AnyObject::~cls_AnyObject()
{
    if (object)
        description.Info().destroy(object);
}

void* cls_AnyObject::Release()
{
    return std::exchange(object, nullptr);
}

namespace
{

bool HasDerivedClasses(const cls_Description& root)
{
    const std::vector<const cls_Description*>& all = cls_Descriptions().All();
    return std::any_of(all.begin(), all.end(),
                       [&root](const cls_Description* description)
                       { return description != &root && description->IsA(root.Id()); });
}

const cls_Description& ClassOfValue(const cls_Description& root, const cls_Value& value)
{
    const cls_Value* given = value.Find("class");
    if (!given)
    {
        if (root.IsAbstract() || HasDerivedClasses(root))
            throw cls_ValueError("class",
                                 std::string("expected the name of a class derived from ") + root.Name());
        return root;
    }
    const std::string& name = cls_TextOfValue(*given);
    const cls_Description* description = cls_Descriptions().Find(name);
    if (!description)
        throw cls_ValueError("class", "no class has the name " + given->Summary());
    if (!description->IsA(root.Id()))
        throw cls_ValueError("class", "expected a " + std::string(root.Name()) + ", found the class " + name);
    if (description->IsAbstract())
        throw cls_ValueError("class", "the class " + name + " is abstract: no object can be of it alone");
    return *description;
}

} // namespace

cls_AnyObject cls_ObjectOfValue(const cls_Description& root, const cls_Value& value)
{
    if (!value.AsObject())
        cls_RaiseUnexpected("an object", value);
    const cls_Description& description = ClassOfValue(root, value);
    cls_AnyObject object(description, description.Info().create());
    description.Import(object.Get(), value);
    return object;
}

cls_Value cls_ValueOfObject(const cls_Description& root, const void* object)
{
    const unsigned id = root.Info().dynTypeId(object);
    const cls_Description* description = cls_Descriptions().Find(id);
    return (description ? *description : root).Export(object);
}
