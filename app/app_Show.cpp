#include "app_Show.h"

#include "app_Check.h"
#include "app_Json.h"
#include "app_Table.h"
#include "app_TableHeadings.h"
#include "app_View.h"
#include "cls_Unset.h"
#include "cmd_Attributes.h"
#include "cmd_Locate.h"

#include <fmt/format.h>

namespace
{

using enum app_Table::Align;

constexpr std::size_t sparkWidth = 20;
constexpr std::size_t longestDigest = 60;
constexpr std::size_t rowsAtEachEnd = 4;

bool IsUnset(const cls_Value& value)
{
    const double* const number = value.AsDouble();
    const std::int64_t* const integer = value.AsInteger();
    return (number && *number == cls_UnsetDouble) || (integer && *integer == cls_UnsetInt);
}

bool IsTable(const cls_Value::Array& elements)
{
    return !elements.empty() && elements.front().AsArray();
}

/// The rows of a table that has more to it than its rows, or null for any other value.
const cls_Value* RowsWithin(const cls_Value& value)
{
    const cls_Value* const rows = cmd_ClassOfValue(value) ? nullptr : value.Find("table");
    return rows && rows->AsArray() ? rows : nullptr;
}

std::string SizeText(const cls_Value& value)
{
    if (const cls_Value* rows = RowsWithin(value))
        return SizeText(*rows);
    if (const cls_Value::Object* members = value.AsObject())
        return app_Count(static_cast<long>(members->size()), "entry", "entries");
    const cls_Value::Array& elements = *value.AsArray();
    const long count = static_cast<long>(elements.size());
    if (!IsTable(elements))
        return app_Count(count, "value");
    return fmt::format("{} of {}", app_Count(count, "row"), elements.front().AsArray()->size());
}

/// The part of a digest that an attribute gives; empty for one that tells nothing.
std::string DigestOf(const cls_Attribute& attribute, const cls_Value& value)
{
    if (value.IsNull() || IsUnset(value))
        return "";
    if (value.AsArray() || (value.AsObject() && !cmd_ClassOfValue(value)))
        return SizeText(value);
    if (value.AsObject())
        return attribute.word;
    return fmt::format("{}={}", attribute.word, app_ShortText(value));
}

/// What makes an object differ from a default one, in short.
std::string Digest(const app_Object& object)
{
    const cls_AnyObject plain(object.description, object.description.Info().create());
    std::string digest;
    for (const cls_Attribute* attribute : object.description.AllAttributes())
    {
        const cls_Value value = attribute->kind->Export(attribute->Member(object.object));
        if (value == attribute->kind->Export(attribute->Member(plain.Get())))
            continue;
        const std::string part = DigestOf(*attribute, value);
        if (part.empty())
            continue;
        if (digest.size() + part.size() > longestDigest)
            return digest + ", ...";
        digest += (digest.empty() ? "" : ", ") + part;
    }
    return digest;
}

std::string SparkOf(const app_Object& object)
{
    const auto curve = app_CurveOf(object.description.Export(object.object));
    return curve ? app_Sparkline(*curve, sparkWidth) : "";
}

} // namespace

std::string app_ShortText(const cls_Value& value)
{
    if (IsUnset(value))
        return "not set";
    if (value.IsNull())
        return "none";
    if (const std::string* text = value.AsText())
        return *text;
    return app_WriteJson(value, app_JsonLayout::OneLine);
}

std::string app_DigestText(const cls_Value& value)
{
    if (const cls_Description* description = cmd_ClassOfValue(value))
        return app_LabelOf(*description);
    return value.AsArray() || value.AsObject() ? SizeText(value) : app_ShortText(value);
}

std::string app_ShowModel(const ddr_Model& model, const std::string& source)
{
    std::string text = fmt::format("{}: {}\n", source, app_Count(app_ObjectCount(model), "object"));
    for (const std::string& word : cmd_RepositoryWords(model))
    {
        app_Table table({Left, Left, Left, Left});
        app_ForEachObjectOf(
            model, word,
            [&table](const app_Object& object) {
                table.Add({object.name, app_LabelOf(object.description), SparkOf(object), Digest(object)});
            });
        const std::string rows = table.Text(2);
        if (!rows.empty())
            text += fmt::format("\n{}\n{}", word, rows);
    }
    return text;
}

cls_Value app_ValueOfList(const ddr_Model& model)
{
    cls_Value::Object repositories;
    for (const std::string& word : cmd_RepositoryWords(model))
    {
        cls_Value::Array objects;
        app_ForEachObjectOf(model, word,
                            [&objects](const app_Object& object)
                            {
                                objects.push_back(
                                    cls_Value::Object{{"name", object.name},
                                                      {"class", object.description.Name()},
                                                      {"label", app_LabelOf(object.description)},
                                                      {"digest", Digest(object)}});
                            });
        repositories.emplace_back(word, std::move(objects));
    }
    return repositories;
}

namespace
{

std::vector<std::string> RowCells(const cls_Value& row)
{
    std::vector<std::string> cells;
    for (const cls_Value& cell : *row.AsArray())
        cells.push_back(app_ShortText(cell));
    return cells;
}

/// The first and the last rows of a table of numbers, under their headings if these are known.
std::string TableText(const cls_Value::Array& rows, std::vector<std::string> headings, std::size_t indent)
{
    app_Table table(std::vector<app_Table::Align>(rows.front().AsArray()->size(), Right));
    if (!headings.empty())
        table.Add(std::move(headings));
    const bool whole = rows.size() <= 2 * rowsAtEachEnd + 1;
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        if (whole || i < rowsAtEachEnd || i >= rows.size() - rowsAtEachEnd)
            table.Add(RowCells(rows[i]));
        else if (i == rowsAtEachEnd)
            table.Add({"..."});
    }
    return table.Text(indent);
}

/// The first and the last values of a list.
std::string ListText(const cls_Value::Array& elements)
{
    std::string text;
    for (std::size_t i = 0; i < elements.size(); ++i)
    {
        const bool shown =
            i < rowsAtEachEnd || i >= elements.size() - std::min(rowsAtEachEnd, elements.size());
        if (shown)
            text += (i == 0 ? "" : ", ") + app_ShortText(elements[i]);
        else if (i == rowsAtEachEnd)
            text += ", ...";
    }
    return text;
}

std::string AttributesText(const cls_Description& description, const cls_Value& object, std::size_t indent);

/// The value of an attribute of `owner`.
std::string ValueText(const cls_Value& owner, const std::string& attribute, const cls_Value& value,
                      std::size_t indent)
{
    if (const cls_Description* description = cmd_ClassOfValue(value))
        return app_LabelOf(*description) + '\n' + AttributesText(*description, value, indent);
    if (const cls_Value* rows = RowsWithin(value))
        return ValueText(owner, attribute, *rows, indent);
    const cls_Value::Array* const elements = value.AsArray();
    if (!elements)
        return app_ShortText(value) + '\n';
    if (elements->empty())
        return "none\n";
    if (IsTable(*elements))
        return SizeText(value) + '\n' +
               TableText(*elements, app_HeadingsOf(owner, attribute, elements->front().AsArray()->size()),
                         indent);
    return fmt::format("{}: {}\n", SizeText(value), ListText(*elements));
}

/// The attributes but for objects that are absent: a material has places for dozens.
std::string AttributesText(const cls_Description& description, const cls_Value& object, std::size_t indent)
{
    std::vector<const cls_Attribute*> attributes = description.AllAttributes();
    std::erase_if(attributes, [&object](const cls_Attribute* attribute)
                  { return object.Find(attribute->field.Name().CString())->IsNull(); });
    std::size_t width = 0;
    for (const cls_Attribute* attribute : attributes)
        width = std::max(width, std::string_view(attribute->word).size());
    std::string text;
    for (const cls_Attribute* attribute : attributes)
    {
        const char* const name = attribute->field.Name().CString();
        text += fmt::format("{:{}}{:{}}  {}", "", indent, attribute->word, width,
                            ValueText(object, name, *object.Find(name), indent + width + 2));
    }
    return text;
}

std::string RulesText(const cls_Description& description, const void* object, const std::string& path)
{
    const auto finding = app_CheckObject(description, object, path);
    if (!finding)
        return "Its rules hold.\n";
    return fmt::format("Broken rule {}: {}\n", finding->id, finding->message);
}

/// The heading over an object and its attributes.
std::string HeadedText(const std::string& path, const cls_Description& description, const cls_Value& value)
{
    return fmt::format("{}  {} ({})\n\n{}\n", path, app_LabelOf(description), description.Name(),
                       AttributesText(description, value, 2));
}

} // namespace

std::string app_ShowObject(const app_Object& object)
{
    const cls_Value value = object.description.Export(object.object);
    const std::string path = app_PathOf(object.repositoryWord, object.name);
    std::string text = HeadedText(path, object.description, value);
    if (const auto curve = app_CurveOf(value))
    {
        const std::string plot = app_Plot(*curve, 0);
        text += plot.empty() ? "" : plot + '\n';
    }
    return text + RulesText(object.description, object.object, path);
}

std::string app_ShowPart(const std::string& path, const cls_Value& part)
{
    const cls_Description& description = *cmd_ClassOfValue(part);
    const cls_AnyObject object = cls_ObjectOfValue(description, part);
    return HeadedText(path, description, part) + RulesText(description, object.Get(), path);
}
