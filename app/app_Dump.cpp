#include "app_Dump.h"

#include "app_File.h"
#include "app_Json.h"
#include "cls_Types.h"
#include "rfm_Cursor.h"
#include "rfm_Database.h"
#include "rfm_ElementStore.h"
#include "rfm_StoreText.h"

#include <limits>
#include <memory>
#include <type_traits>

#include <fmt/format.h>

namespace
{

using Row = std::vector<cls_Value>;

/// One table with all of its rows.
struct Table
{
    std::string name;
    std::vector<std::string> columns;
    std::vector<Row> rows;
};

std::string IdText(std::int64_t id)
{
    return fmt::format("0x{:X}", static_cast<std::uint64_t>(id));
}

cls_Value BlobOf(std::string_view bytes)
{
    std::string hex;
    for (const char byte : bytes)
        hex += fmt::format("{:02x}", static_cast<unsigned char>(byte));
    return cls_Value::Object{{"blob", hex}};
}

cls_Value ValueOf(const rfm_Cell& cell)
{
    switch (cell.kind)
    {
    case rfm_CellKind::Integer:
        return cell.integer;
    case rfm_CellKind::Real:
        return cls_ValueOfDouble(cell.real);
    case rfm_CellKind::Text:
        return std::string(cell.View());
    case rfm_CellKind::Blob:
        return BlobOf(cell.View());
    default:
        return cls_Value();
    }
}

bool IsClassIdColumn(const std::string& column)
{
    return column.ends_with("ClassID");
}

/// A cell of this column; ids of classes as the catalogue writes them.
cls_Value ValueIn(const std::string& column, const rfm_Cell& cell)
{
    if (IsClassIdColumn(column) && cell.Is(rfm_CellKind::Integer))
        return IdText(cell.integer);
    return ValueOf(cell);
}

/// Calls `act` with the cursor on each row of a table.
template <class Act>
void ForEachRow(rfm_Database& database, const rfm_TableForm& form, Act act)
{
    rfm_Cursor cursor(database, form);
    for (bool there = cursor.SeekFrom(std::numeric_limits<std::int64_t>::min()); there; there = cursor.Next())
        act(cursor);
}

Table ReadTable(rfm_Database& database, const rfm_TableForm& form)
{
    Table table{form.name.CString(), {form.keyColumn.CString()}, {}};
    for (const rfm_Column& column : form.columns)
        table.columns.emplace_back(column.name.CString());
    ForEachRow(database, form,
               [&table](const rfm_Cursor& cursor)
               {
                   Row row{cursor.Key()};
                   for (int i = 0; i < cursor.Count(); ++i)
                       row.push_back(
                           ValueIn(table.columns[static_cast<std::size_t>(i) + 1], cursor.Cells()[i]));
                   table.rows.push_back(std::move(row));
               });
    return table;
}

/// The elements of all collections whose rows stand in one table.
void AddElements(Table& elements, rfm_Database& database, const rfm_TableInfo& collections)
{
    rfm_ElementCursor cursor(database);
    ForEachRow(database, rfm_TableForm::Of(collections),
               [&](const rfm_Cursor& collection)
               {
                   cursor.Open(collections.classId, collection.Key());
                   rfm_Element element;
                   for (std::int64_t position = 0; cursor.Next(element); ++position)
                       elements.rows.push_back({IdText(collections.classId), collection.Key(), position,
                                                ValueOf(element.key), ValueOf(element.value),
                                                ValueIn("ClassID", element.targetClassId),
                                                ValueOf(element.targetOid)});
                   cursor.Close();
               });
}

Table ReadElements(rfm_Database& database)
{
    Table elements{rfm_Elements::name, {}, {}};
    for (int column = 0; column < rfm_Elements::Check; ++column)
        elements.columns.emplace_back(rfm_Elements::columns[column]);
    for (const rfm_TableInfo& table : database.Tables())
    {
        const bool isCollection = table.classId == cls_ListTypeId || table.classId == cls_MapTypeId;
        if (isCollection && database.HasTable(rfm_Elements::name))
            AddElements(elements, database, table);
    }
    return elements;
}

/// The numbers of an array whose row has this type.
template <class T>
cls_Value NumbersOf(rfm_ArrayStore& arrays, std::int64_t handle, rfm_Type type)
{
    const std::size_t length = static_cast<std::size_t>(arrays.Open(handle, type));
    const std::unique_ptr<T[]> numbers(new T[length]);
    if (length > 0)
        arrays.Read(numbers.get());
    cls_Value::Array values;
    for (std::size_t i = 0; i < length; ++i)
    {
        if constexpr (std::is_same_v<T, double>)
            values.push_back(cls_ValueOfDouble(numbers[i]));
        else
            values.emplace_back(numbers[i]);
    }
    return values;
}

/// The numbers of an array, or its bytes if no array can be of this type.
cls_Value ArrayValue(rfm_Database& database, std::int64_t handle, const rfm_Cell& type, const rfm_Cell& bytes)
{
    switch (type.Is(rfm_CellKind::Integer) ? type.integer : 0)
    {
    case rfm_TypeBool:
        return NumbersOf<bool>(database.Arrays(), handle, rfm_TypeBool);
    case rfm_TypeInt:
        return NumbersOf<int>(database.Arrays(), handle, rfm_TypeInt);
    case rfm_TypeDouble:
        return NumbersOf<double>(database.Arrays(), handle, rfm_TypeDouble);
    default:
        return ValueOf(bytes);
    }
}

Table ReadArrays(rfm_Database& database)
{
    const rfm_TableForm form = rfm_TableForm::Arrays();
    Table arrays{form.name.CString(), {"Handle", "Type", "Length", "Values"}, {}};
    if (!database.HasTable(form.name))
        return arrays;
    ForEachRow(database, form,
               [&](const rfm_Cursor& cursor)
               {
                   const rfm_Cell* const cells = cursor.Cells();
                   arrays.rows.push_back({cursor.Key(), ValueOf(cells[0]), ValueOf(cells[1]),
                                          ArrayValue(database, cursor.Key(), cells[0], cells[2])});
               });
    return arrays;
}

cls_Value ValueOf(const Table& table)
{
    cls_Value::Array columns(table.columns.begin(), table.columns.end());
    cls_Value::Array rows(table.rows.begin(), table.rows.end());
    return cls_Value::Object{
        {"name", table.name}, {"columns", std::move(columns)}, {"rows", std::move(rows)}};
}

} // namespace

long app_PrintDump(const std::string& path)
{
    rfm_Database database(path.c_str(), rfm_Access::Read);
    return rfm_WriteStoreText(database, [](std::string_view text) { app_Print(std::string(text)); });
}

void app_PrintDumpAsJson(const std::string& path)
{
    rfm_Database database(path.c_str(), rfm_Access::Read);
    cls_Value::Array tables;
    for (const rfm_TableInfo& table : database.Tables())
    {
        cls_Value value = ValueOf(ReadTable(database, rfm_TableForm::Of(table)));
        cls_Value::Object& members = *value.AsObject();
        members.insert(members.begin() + 1, {{"class", IdText(table.classId)},
                                             {"version", table.version},
                                             {"base", IdText(table.baseClassId)}});
        tables.push_back(std::move(value));
    }
    cls_Value::Array foreign;
    for (const cow_String& name : database.ForeignParts())
        foreign.emplace_back(name.CString());
    const cls_Value whole = cls_Value::Object{{"file", path},
                                              {"roots", ValueOf(ReadTable(database, rfm_TableForm::Roots()))},
                                              {"tables", std::move(tables)},
                                              {"elements", ValueOf(ReadElements(database))},
                                              {"arrays", ValueOf(ReadArrays(database))},
                                              {"foreign", std::move(foreign)}};
    app_Print(app_WriteJson(whole, app_JsonLayout::Records) + '\n');
}
