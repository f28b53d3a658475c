#include "rfm_TableForm.h"

namespace
{
const char* NameOf(rfm_ColumnKind kind)
{
    switch (kind)
    {
    case rfm_ColumnKind::Integer:
        return " INTEGER";
    case rfm_ColumnKind::Real:
        return " REAL";
    case rfm_ColumnKind::Text:
        return " TEXT";
    case rfm_ColumnKind::Blob:
        return " BLOB";
    case rfm_ColumnKind::Any:
        break;
    }
    return "";
}
} // namespace

std::string rfm_Quoted(const cow_String& name)
{
    std::string quoted = "\"";
    for (const char letter : name.View())
    {
        if (letter == '"')
            quoted += '"';
        quoted += letter;
    }
    return quoted + '"';
}

rfm_TableForm rfm_TableForm::Of(const rfm_TableInfo& table)
{
    return {table.name, rfm_OidColumn, table.columns, table.classId};
}

// The numbers of the store's own tables lie below all class ids.

rfm_TableForm rfm_TableForm::Catalogue()
{
    return {"rom_Class",
            "ClassID",
            {{"Name", rfm_ColumnKind::Text},
             {"Version", rfm_ColumnKind::Integer},
             {"BaseClassID", rfm_ColumnKind::Integer}},
            1};
}

rfm_TableForm rfm_TableForm::Roots()
{
    return {"rom_Root",
            rfm_OidColumn,
            {{"Name", rfm_ColumnKind::Text},
             {"Target#ClassID", rfm_ColumnKind::Integer},
             {"Target#OID", rfm_ColumnKind::Integer}},
            2};
}

rfm_TableForm rfm_TableForm::Arrays()
{
    return {"rfm_Array",
            "Handle",
            {{"Type", rfm_ColumnKind::Integer},
             {"Length", rfm_ColumnKind::Integer},
             {"Bytes", rfm_ColumnKind::Blob}},
            4};
}

std::string rfm_TableForm::SqlName() const
{
    return schema.IsEmpty() ? rfm_Quoted(name) : rfm_Quoted(schema) + "." + rfm_Quoted(name);
}

std::string rfm_TableForm::SqlToCreate() const
{
    std::string sql = "CREATE TABLE " + SqlName() + " (" + rfm_Quoted(keyColumn) + " INTEGER PRIMARY KEY";
    for (const rfm_Column& column : columns)
        sql += ", " + rfm_Quoted(column.name) + NameOf(column.kind);
    return sql + ", " + rfm_Quoted(rfm_CheckColumn) + " INTEGER)";
}

std::string rfm_TableForm::SqlToRead() const
{
    std::string sql = "SELECT " + rfm_Quoted(keyColumn);
    for (const rfm_Column& column : columns)
        sql += ", " + rfm_Quoted(column.name);
    return sql + ", " + rfm_Quoted(rfm_CheckColumn) + " FROM " + SqlName() + " WHERE " +
           rfm_Quoted(keyColumn) + " >= ? ORDER BY " + rfm_Quoted(keyColumn);
}

const char* const rfm_Elements::columns[ColumnCount] = {
    "ClassID", "OID", "Position", "Key", "Value", "Target#ClassID", "Target#OID", rfm_CheckColumn};

std::string rfm_Elements::SqlToCreate(const cow_String& schema)
{
    return "CREATE TABLE " + Form(schema).SqlName() +
           " (\"ClassID\" INTEGER, \"OID\" INTEGER, \"Position\" INTEGER, "
           "\"Key\", \"Value\", \"Target#ClassID\" INTEGER, \"Target#OID\" INTEGER, \"##Check\" INTEGER, "
           "PRIMARY KEY(\"ClassID\", \"OID\", \"Position\")) WITHOUT ROWID";
}

rfm_TableForm rfm_Elements::Form(const cow_String& schema)
{
    return {name,
            columns[Oid],
            {{columns[ClassId], rfm_ColumnKind::Integer},
             {columns[Position], rfm_ColumnKind::Integer},
             {columns[Key], rfm_ColumnKind::Any},
             {columns[Value], rfm_ColumnKind::Any},
             {columns[TargetClassId], rfm_ColumnKind::Integer},
             {columns[TargetOid], rfm_ColumnKind::Integer}},
            checkSeed,
            schema};
}

std::string rfm_Elements::SqlToRead(const cow_String& schema)
{
    return "SELECT \"Position\", \"Key\", \"Value\", \"Target#ClassID\", \"Target#OID\", \"##Check\" "
           "FROM " +
           Form(schema).SqlName() + " WHERE \"ClassID\" = ? AND \"OID\" = ? ORDER BY \"Position\"";
}

std::string rfm_Elements::SqlToReadAll()
{
    std::string sql = "SELECT ";
    for (int column = 0; column < ColumnCount; ++column)
        sql += (column == 0 ? "" : ", ") + rfm_Quoted(columns[column]);
    return sql + " FROM \"rom_Element\" ORDER BY \"ClassID\", \"OID\", \"Position\"";
}
