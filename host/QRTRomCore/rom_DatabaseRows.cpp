#include "rom_DatabaseRows.h"

#include <algorithm>

rom_DatabaseSink::rom_DatabaseSink(rfm_Database& database) : database(database) {}

rom_DatabaseSink::~rom_DatabaseSink() = default;

void rom_DatabaseSink::Flush()
{
    for (const std::unique_ptr<rfm_Inserter>& inserter : inserters)
        inserter->Flush();
    if (elements)
        elements->Flush();
}

cow_String rom_DatabaseSink::Name() const
{
    return database.Path();
}

int rom_DatabaseSink::AddTable(const rfm_TableInfo& table)
{
    database.CreateTable(table);
    inserters.push_back(std::make_unique<rfm_Inserter>(database, rfm_TableForm::Of(table)));
    return static_cast<int>(inserters.size()) - 1;
}

void rom_DatabaseSink::InsertRow(int table, std::int64_t oid, const rfm_Cell* cells)
{
    inserters[static_cast<std::size_t>(table)]->Insert(oid, cells);
}

void rom_DatabaseSink::InsertElement(unsigned classId, std::int64_t oid, std::int64_t position,
                                     const rfm_Element& element)
{
    if (!elements)
        elements = std::make_unique<rfm_ElementInserter>(database);
    elements->Insert(classId, oid, position, element);
}

std::int64_t rom_DatabaseSink::InsertArray(rfm_Type type, const void* values, std::int64_t length)
{
    return database.Arrays().Insert(type, values, length);
}

void rom_DatabaseSink::InsertRoot(const cow_String& name, unsigned classId, std::int64_t oid)
{
    database.InsertRoot({name, classId, oid});
}

rom_DatabaseSource::rom_DatabaseSource(rfm_Database& database) : database(database) {}

rom_DatabaseSource::~rom_DatabaseSource() = default;

cow_String rom_DatabaseSource::Name() const
{
    return database.Path();
}

std::int64_t rom_DatabaseSource::Size() const
{
    return database.FileSize();
}

int rom_DatabaseSource::FindTable(const rfm_TableInfo& expected)
{
    const rfm_TableInfo* found = database.FindTable(expected.classId);
    if (!found)
        database.Raise("The table is missing.", expected.name);
    rom_RequireForm(database, *found, expected);
    tables.push_back({rfm_TableForm::Of(expected), {}, {}});
    return static_cast<int>(tables.size()) - 1;
}

/// A free cursor, best one that stands right before the row.
rfm_Cursor& rom_DatabaseSource::TakeCursor(Table& table, std::int64_t oid)
{
    std::vector<rfm_Cursor*>& cursors = table.freeCursors;
    if (cursors.empty())
    {
        cursors.reserve(table.cursors.size() + 1);
        table.cursors.push_back(std::make_unique<rfm_Cursor>(database, table.form));
        return *table.cursors.back();
    }
    const auto next = std::find_if(cursors.begin(), cursors.end(),
                                   [oid](const rfm_Cursor* cursor) { return cursor->IsNext(oid); });
    if (next != cursors.end())
        std::iter_swap(next, cursors.end() - 1);
    rfm_Cursor& taken = *cursors.back();
    cursors.pop_back();
    return taken;
}

bool rom_DatabaseSource::OpenRow(int position, std::int64_t oid, rom_OpenRow& row)
{
    Table& table = tables[static_cast<std::size_t>(position)];
    rfm_Cursor& cursor = TakeCursor(table, oid);
    bool isThere = false;
    try
    {
        isThere = cursor.Seek(oid);
    }
    catch (...)
    {
        table.freeCursors.push_back(&cursor);
        throw;
    }
    row = {cursor.Cells(), &cursor};
    if (!isThere)
        table.freeCursors.push_back(&cursor);
    return isThere;
}

void rom_DatabaseSource::CloseRow(int table, const rom_OpenRow& row) noexcept
{
    tables[static_cast<std::size_t>(table)].freeCursors.push_back(static_cast<rfm_Cursor*>(row.place));
}

void* rom_DatabaseSource::OpenElements(unsigned classId, std::int64_t oid)
{
    if (freeElementCursors.empty())
    {
        if (elementCursors.empty())
            database.RequireElements();
        freeElementCursors.reserve(elementCursors.size() + 1);
        elementCursors.push_back(std::make_unique<rfm_ElementCursor>(database));
        freeElementCursors.push_back(elementCursors.back().get());
    }
    rfm_ElementCursor* cursor = freeElementCursors.back();
    cursor->Open(classId, oid);
    freeElementCursors.pop_back();
    return cursor;
}

bool rom_DatabaseSource::NextElement(void* place, rfm_Element& element)
{
    return static_cast<rfm_ElementCursor*>(place)->Next(element);
}

void rom_DatabaseSource::CloseElements(void* place) noexcept
{
    auto* cursor = static_cast<rfm_ElementCursor*>(place);
    cursor->Close();
    freeElementCursors.push_back(cursor);
}

std::int64_t rom_DatabaseSource::OpenArray(std::int64_t handle, rfm_Type type)
{
    return database.Arrays().Open(handle, type);
}

void rom_DatabaseSource::ReadArray(void* values)
{
    database.Arrays().Read(values);
}

void rom_RequireForm(const rfm_Database& database, const rfm_TableInfo& found, const rfm_TableInfo& expected)
{
    const auto raise = [&](const std::string& message, const cow_String& field = cow_String())
    { database.Raise(message, found.name, rom_StoreException::NoRow, field); };
    if (found.version > expected.version)
        raise("The table was written by a newer release: it has version " + std::to_string(found.version) +
              ", and this release knows version " + std::to_string(expected.version) + ".");
    if (found.version < expected.version)
    {
        const std::string message = "The table has the old version " + std::to_string(found.version) +
                                    "; the store must be upgraded to version " +
                                    std::to_string(expected.version) + " first.";
        rom_OldStoreException(database.Path(), found.name, message.c_str()).Throw(__FILE__, __LINE__);
    }
    if (!(found.name == expected.name))
        raise(std::string("The table should have the name ") + expected.name.CString() + ".");
    if (found.baseClassId != expected.baseClassId)
        raise("The table names another base class than the class has.", "BaseClassID");
    const auto has = [](const rfm_TableInfo& table, const cow_String& name)
    {
        return std::any_of(table.columns.begin(), table.columns.end(),
                           [&name](const rfm_Column& column) { return column.name == name; });
    };
    for (const rfm_Column& column : expected.columns)
    {
        if (!has(found, column.name))
            raise("The table lacks this column.", column.name);
    }
    for (const rfm_Column& column : found.columns)
    {
        if (!has(expected, column.name))
            raise("The class has no such attribute.", column.name);
    }
}
