#include "rfm_RowLayout.h"

#include "rfm_CellText.h"
#include "rfm_Check.h"
#include "rfm_TextLine.h"

#include <algorithm>

namespace
{
using Form = rfm_RowField::Form;

constexpr std::string_view classSuffix = "#ClassID";
constexpr std::string_view rowSuffix = "#OID";

std::string Named(std::string_view name)
{
    return rfm_TextLine::IsPlainName(name) ? std::string(name) : rfm_InQuotes(name);
}

/// The kind as the text tells it; nothing where the name does.
std::string Kind(const rfm_Column& column)
{
    const bool isUid = column.name == rfm_UidColumn && column.kind == rfm_ColumnKind::Blob;
    const bool isNumber =
        column.name.View().find('#') != std::string_view::npos && column.kind == rfm_ColumnKind::Integer;
    return isUid || isNumber ? "" : std::string(":") + rfm_NameOf(column.kind);
}

/// The name of the reference that two columns are; empty if they are none.
std::string_view ReferenceName(const rfm_Column& first, const rfm_Column& second)
{
    const std::string_view name = first.name.View();
    if (!name.ends_with(classSuffix) || first.kind != rfm_ColumnKind::Integer ||
        second.kind != rfm_ColumnKind::Integer)
        return {};
    const std::string_view base = name.substr(0, name.size() - classSuffix.size());
    return second.name.View() == std::string(base).append(rowSuffix) ? base : std::string_view();
}

/// The fields of columns that stand behind `keyWidth` cells.
void AddFields(rfm_RowLayout& layout, const std::vector<rfm_Column>& columns, bool withKinds)
{
    const int first = layout.keyWidth;
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        const int cell = first + static_cast<int>(i);
        const std::string_view reference =
            i + 1 < columns.size() ? ReferenceName(columns[i], columns[i + 1]) : std::string_view();
        if (reference.empty())
        {
            layout.fields.push_back(
                {Named(columns[i].name.View()) + (withKinds ? Kind(columns[i]) : ""), cell, Form::Plain});
            continue;
        }
        const std::string kind = withKinds ? std::string(":") + rfm_ReferenceKind : "";
        layout.fields.push_back({Named(reference) + kind, cell, Form::Reference});
        ++i;
    }
    for (const rfm_Column& column : columns)
        layout.kinds.push_back(column.kind);
}

rfm_RowLayout LayoutOf(const rfm_TableForm& form, bool withKinds)
{
    rfm_RowLayout layout{.table = form.name,
                         .kinds = {rfm_ColumnKind::Integer},
                         .keyWidth = 1,
                         .checkSeed = form.checkSeed,
                         .fields = {{form.keyColumn.CString(), 0, Form::Plain}}};
    AddFields(layout, form.columns, withKinds);
    return layout;
}
} // namespace

rfm_RowLayout rfm_RowLayout::Of(const rfm_TableInfo& table)
{
    rfm_RowLayout layout = LayoutOf(rfm_TableForm::Of(table), true);
    layout.hasUids = !table.columns.empty() && table.columns[0].name == rfm_UidColumn &&
                     table.columns[0].kind == rfm_ColumnKind::Blob;
    return layout;
}

rfm_RowLayout rfm_RowLayout::Roots()
{
    return LayoutOf(rfm_TableForm::Roots(), false);
}

rfm_RowLayout rfm_RowLayout::Arrays()
{
    rfm_RowLayout layout = LayoutOf(rfm_TableForm::Arrays(), false);
    layout.numbersCell = static_cast<int>(layout.kinds.size()) - 1;
    return layout;
}

rfm_RowLayout rfm_RowLayout::Elements()
{
    rfm_RowLayout layout{.table = rfm_Elements::name,
                         .kinds = {},
                         .keyWidth = rfm_Elements::keyColumns,
                         .checkSeed = rfm_Elements::checkSeed,
                         .fields = {}};
    for (int i = 0; i < layout.keyWidth; ++i)
    {
        layout.kinds.push_back(rfm_ColumnKind::Integer);
        layout.fields.push_back(
            {rfm_Elements::columns[i], i, i == rfm_Elements::ClassId ? Form::ClassId : Form::Plain});
    }
    AddFields(layout,
              {{"Key", rfm_ColumnKind::Any},
               {"Value", rfm_ColumnKind::Any},
               {"Target#ClassID", rfm_ColumnKind::Integer},
               {"Target#OID", rfm_ColumnKind::Integer}},
              false);
    return layout;
}

std::int64_t rfm_CheckOf(const rfm_RowLayout& layout, const rfm_Cell* cells)
{
    // The key of an element's number is the collection's row.
    const int key = layout.keyWidth == 1 ? 0 : static_cast<int>(rfm_Elements::Oid);
    rfm_Check check(layout.checkSeed, cells[key].integer);
    for (int i = 0; i < static_cast<int>(layout.kinds.size()); ++i)
    {
        if (i != key)
            check.Add(cells[i]);
    }
    return check.Number();
}

std::array<char, rfm_UidSize> rfm_MadeUpUid(unsigned classId, std::int64_t oid)
{
    constexpr std::string_view mark = "text";
    std::array<char, rfm_UidSize> uid{};
    std::copy(mark.begin(), mark.end(), uid.begin());
    for (std::size_t i = 0; i < sizeof classId; ++i)
        uid[mark.size() + i] = static_cast<char>(classId >> (8 * i) & 0xFF);
    for (std::size_t i = 0; i < sizeof oid; ++i)
        uid[mark.size() + sizeof classId + i] =
            static_cast<char>(static_cast<std::uint64_t>(oid) >> (8 * i) & 0xFF);
    return uid;
}

const char* rfm_NameOf(rfm_ColumnKind kind)
{
    switch (kind)
    {
    case rfm_ColumnKind::Integer:
        return "integer";
    case rfm_ColumnKind::Real:
        return "real";
    case rfm_ColumnKind::Text:
        return "text";
    case rfm_ColumnKind::Blob:
        return "blob";
    case rfm_ColumnKind::Any:
        break;
    }
    return "any";
}
