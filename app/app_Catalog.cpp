#include "app_Catalog.h"

#include "app_Error.h"
#include "app_Json.h"
#include "app_OldVersions.h"
#include "app_Show.h"
#include "app_Table.h"
#include "cls_Module.h"
#include "cmd_Error.h"
#include "typ_ArchCompTable.h"

#include <algorithm>
#include <array>
#include <optional>

#include <fmt/format.h>

namespace
{

struct Module
{
    const char* name;
    unsigned short number;
    const char* title;
};

// In order of initialization.
constexpr std::array<Module, 14> modules{{{"kefC", 844, "engineering features"},
                                          {"ktbC", 772, "tables and event series"},
                                          {"kbeC", 680, "connector and contact behaviours"},
                                          {"kipC", 863, "empty module"},
                                          {"kamC", 580, "amplitudes"},
                                          {"kbpC", 612, "beam profiles"},
                                          {"kflC", 849, "filters"},
                                          {"kmaC", 568, "materials"},
                                          {"klcC", 732, "load cases"},
                                          {"kfdC", 858, "fields"},
                                          {"kcoC", 720, "constraints"},
                                          {"karC", 855, "remeshing rules"},
                                          {"kadC", 616, "adaptive mesh controls"},
                                          {"kopC", 932, "optimization"}}};

std::string IdText(unsigned id)
{
    return fmt::format("0x{:X}", id);
}

cls_Value::Array TypesOf(const Module& module)
{
    cls_Value::Array types;
    const typ_ArchCompEntry entry = typ_ArchCompTable::Entry(module.number);
    for (unsigned index = 0; index < entry.Count(); ++index)
    {
        const typ_Entry& row = entry.Rows()[index];
        if (!row.name)
            continue;
        const unsigned id = static_cast<unsigned>(module.number) << 16 | index;
        types.push_back(cls_Value::Object{{"index", static_cast<int>(index)},
                                          {"id", IdText(id)},
                                          {"name", row.name},
                                          {"parent", IdText(row.parent)}});
    }
    return types;
}

cls_Value::Object TextsOf(const cls_MessageTable& table)
{
    cls_Value::Object texts;
    for (int code = 0; code < table.count; ++code)
        texts.emplace_back(std::to_string(code), table.Text(code));
    return texts;
}

const std::vector<cls_Catalogue::Messages>& AllMessages()
{
    return omi_Singleton<cls_Catalogue>::Instance()->AllMessages();
}

cls_Value::Object MessagesOf(const Module& module)
{
    cls_Value::Object functions;
    for (const cls_Catalogue::Messages& messages : AllMessages())
    {
        if (messages.module == module.number)
            functions.emplace_back(messages.table->function, TextsOf(*messages.table));
    }
    return functions;
}

cls_Value ValueOfModule(const Module& module)
{
    return cls_Value::Object{{"name", module.name},
                             {"number", static_cast<int>(module.number)},
                             {"types", TypesOf(module)},
                             {"messages", MessagesOf(module)}};
}

bool HasDefault(const cls_Kind& kind)
{
    switch (kind.Id())
    {
    case cls_KindEnm::Int:
    case cls_KindEnm::Double:
    case cls_KindEnm::String:
    case cls_KindEnm::Bool:
    case cls_KindEnm::Enum:
        return true;
    default:
        return false;
    }
}

/// The class itself, or the first that derives from it and has objects; null if there is none.
const cls_Description* FirstConcrete(const cls_Description& description)
{
    if (!description.IsAbstract())
        return &description;
    for (const cls_Description* other : cls_Descriptions().All())
    {
        if (!other->IsAbstract() && other->IsA(description.Id()))
            return other;
    }
    return nullptr;
}

/// An object as its default constructor makes it, to ask it for defaults.
class DefaultObject
{
public:
    explicit DefaultObject(const cls_Description& description)
    {
        if (const cls_Description* concrete = FirstConcrete(description))
            object.emplace(*concrete, concrete->Info().create());
    }

    /// Whether the attribute has a default that can be told.
    bool Has(const cls_Attribute& attribute) const { return object && HasDefault(*attribute.kind); }

    cls_Value Of(const cls_Attribute& attribute) const
    {
        return attribute.kind->Export(attribute.Member(object->Get()));
    }

private:
    std::optional<cls_AnyObject> object;
};

std::string EnumName(const omu_EnumTable& table)
{
    return std::string(table.enumName);
}

cls_Value ValueOfAttribute(const cls_Attribute& attribute, const DefaultObject& defaults)
{
    const cls_Kind& kind = *attribute.kind;
    cls_Value::Object members;
    members.emplace_back("index", attribute.field.Index());
    members.emplace_back("name", attribute.field.Name().CString());
    members.emplace_back("kind", kind.Name());
    if (const cls_Description* of = kind.Of())
        members.emplace_back("of", of->Name());
    if (const omu_EnumTable* table = kind.Enum())
        members.emplace_back("enum", EnumName(*table));
    members.emplace_back("code", static_cast<int>(kind.Type()));
    members.emplace_back("typeId", IdText(kind.TypeId()));
    members.emplace_back("collection", static_cast<int>(kind.Collection()));
    if (defaults.Has(attribute))
        members.emplace_back("default", defaults.Of(attribute));
    members.emplace_back("word", attribute.word);
    return members;
}

/// The stored name of a class's base; null for a root.
cls_Value BaseName(const cls_Description& description)
{
    if (description.Info().baseId == cls_RootId)
        return cls_Value();
    if (const cls_Description* base = description.Base())
        return base->Name();
    return typ_ArchCompTable::GetName(description.Info().baseId);
}

cls_Value::Object WordsOf(const cls_Description& description)
{
    cls_Value::Object words;
    for (const cls_Word& word : description.Words())
        words.emplace_back(word.name, word.word);
    return words;
}

void AddEnum(cls_Value::Object& enums, const omu_EnumTable& table)
{
    const std::string name = EnumName(table);
    const auto same = [&name](const auto& known) { return known.first == name; };
    if (std::any_of(enums.begin(), enums.end(), same))
        return;
    cls_Value::Array rows;
    for (int row = 0; row < table.rowCount; ++row)
        rows.push_back(cls_Value::Array{table.rows[row].name, table.rows[row].value});
    enums.emplace_back(name, std::move(rows));
}

/// The enumerations that the class owns, then those that its attributes have beside.
void AddEnumsOf(cls_Value::Object& enums, const cls_Description& description)
{
    for (const omu_EnumTable* table : description.Enums())
        AddEnum(enums, *table);
    for (const cls_Attribute& attribute : description.Attributes())
    {
        if (const omu_EnumTable* table = attribute.kind->Enum())
            AddEnum(enums, *table);
    }
}

/// The key of a label: a class id as everywhere, or a plain number, which is less than any class id.
std::string KeyText(int key)
{
    constexpr int leastClassId = 0x10000;
    return key < leastClassId ? std::to_string(key) : IdText(static_cast<unsigned>(key));
}

cls_Value::Object AllLabels()
{
    cls_Value::Object maps;
    for (const cls_Catalogue::Labels& labels : omi_Singleton<cls_Catalogue>::Instance()->AllLabels())
    {
        cls_Value::Object rows;
        for (const cls_Label& label : labels.rows())
            rows.emplace_back(KeyText(label.key), label.text);
        maps.emplace_back(labels.name, std::move(rows));
    }
    return maps;
}

} // namespace

cls_Value app_CatalogOfClass(const cls_Description& description)
{
    const DefaultObject defaults(description);
    cls_Value::Array attributes;
    for (const cls_Attribute& attribute : description.Attributes())
        attributes.push_back(ValueOfAttribute(attribute, defaults));
    return cls_Value::Object{{"name", description.Name()},
                             {"id", IdText(description.Id())},
                             {"version", description.Info().version},
                             {"base", BaseName(description)},
                             {"abstract", description.IsAbstract()},
                             {"words", WordsOf(description)},
                             {"attributes", std::move(attributes)}};
}

cls_Value app_Catalog()
{
    cls_Value::Array modulesValue;
    for (const Module& module : modules)
        modulesValue.push_back(ValueOfModule(module));
    cls_Value::Array classes;
    cls_Value::Object enums;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        classes.push_back(app_CatalogOfClass(*description));
        AddEnumsOf(enums, *description);
    }
    return cls_Value::Object{{"modules", std::move(modulesValue)},
                             {"classes", std::move(classes)},
                             {"enums", std::move(enums)},
                             {"labels", AllLabels()},
                             {"oldVersions", app_OldVersions()}};
}

std::string app_CatalogJson(const cls_Value& catalog)
{
    return app_WriteJson(catalog, app_JsonLayout::Records) + '\n';
}

namespace
{

std::string ConstructorWord(const cls_Description& description)
{
    const char* const word = description.IsAbstract() ? nullptr : description.FindWord("constructor");
    return word ? word : "";
}

} // namespace

const cls_Description& app_FindClass(const std::string& nameOrWord)
{
    if (const cls_Description* description = cls_Descriptions().Find(nameOrWord))
        return *description;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        if (ConstructorWord(*description) == nameOrWord && !nameOrWord.empty())
            return *description;
    }
    std::vector<std::string> known;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        known.emplace_back(description->Name());
        if (const std::string word = ConstructorWord(*description); !word.empty())
            known.push_back(word);
    }
    const std::string nearest = cmd_Nearest(nameOrWord, known);
    throw app_Error("no class has the name or the constructor word " + nameOrWord +
                    (nearest.empty() ? "" : "; did you mean " + nearest + '?') +
                    " (`vdbattr catalog` lists them)");
}

namespace
{

using enum app_Table::Align;

std::string ClassLines(const Module& module)
{
    app_Table table({Left, Left, Right, Left, Left});
    for (const cls_Description* description : cls_Descriptions().All())
    {
        if (description->Id() >> 16 != module.number)
            continue;
        const std::string attributes =
            app_Count(static_cast<long>(description->Attributes().size()), "attribute");
        table.Add({IdText(description->Id()), description->Name(),
                   std::to_string(description->Info().version), attributes,
                   description->IsAbstract() ? "(abstract)" : ConstructorWord(*description)});
    }
    return table.Text(2);
}

long MessageCount(const Module& module)
{
    long count = 0;
    for (const cls_Catalogue::Messages& messages : AllMessages())
        count += messages.module == module.number ? messages.table->count : 0;
    return count;
}

std::string KindText(const cls_Kind& kind)
{
    std::string text = kind.Name();
    if (const cls_Description* of = kind.Of())
        text += std::string(" of ") + of->Name();
    if (const omu_EnumTable* table = kind.Enum())
        text += std::string(": ") + omu_NamesOf(*table).CString();
    return text;
}

void AddAttributeRows(app_Table& table, const cls_Description& layer, const DefaultObject& defaults)
{
    if (const cls_Description* base = layer.Base())
        AddAttributeRows(table, *base, defaults);
    for (const cls_Attribute& attribute : layer.Attributes())
    {
        const std::string name = attribute.field.Name().CString();
        table.Add({attribute.word, name == attribute.word ? "" : name,
                   defaults.Has(attribute) ? app_ShortText(defaults.Of(attribute)) : "", layer.Name(),
                   KindText(*attribute.kind)});
    }
}

std::string DerivedText(const cls_Description& description)
{
    std::string names;
    for (const cls_Description* other : cls_Descriptions().All())
    {
        if (other != &description && other->IsA(description.Id()))
            names += (names.empty() ? "" : ", ") + std::string(other->Name());
    }
    return names;
}

} // namespace

std::string app_CatalogText()
{
    std::string text;
    for (const Module& module : modules)
    {
        text += fmt::format("{}  {} (module {}, {}, {})\n", module.name, module.title, module.number,
                            app_Count(static_cast<long>(TypesOf(module).size()), "type"),
                            app_Count(MessageCount(module), "message"));
        text += ClassLines(module);
    }
    text +=
        "\n`vdbattr catalog CLASS` shows the attributes of a class, `vdbattr catalog --json` everything.\n";
    return text;
}

std::string app_CatalogTextOfClass(const cls_Description& description)
{
    std::string text = fmt::format("{}  {}, version {}\n", description.Name(), IdText(description.Id()),
                                   description.Info().version);
    app_Table facts({Left, Left});
    if (const cls_Value base = BaseName(description); !base.IsNull())
        facts.Add({"base", *base.AsText()});
    if (const std::string derived = DerivedText(description); !derived.empty())
        facts.Add({"derived", derived});
    if (const std::string versions = app_OldVersionsOf(description.Id()); !versions.empty())
        facts.Add({"older versions", versions});
    for (const cls_Word& word : description.Words())
        facts.Add({word.name, word.word});
    text += facts.Text(2);

    const DefaultObject defaults(description);
    app_Table attributes({Left, Left, Left, Left, Left});
    attributes.Add({"word", "stored as", "default", "declared in", "kind"});
    AddAttributeRows(attributes, description, defaults);
    return text + '\n' + attributes.Text(2);
}
