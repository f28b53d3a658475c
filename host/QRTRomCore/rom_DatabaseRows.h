#pragma once

#include "rfm_Cursor.h"
#include "rfm_Database.h"
#include "rfm_Inserter.h"
#include "rom_RowStore.h"

#include <memory>

/// Puts rows into a file. Tables are made when they are first named. The rows are in the file after `Flush`.
class OVR_EXPORT rom_DatabaseSink final : public rom_RowSink
{
public:
    explicit rom_DatabaseSink(rfm_Database& database);
    ~rom_DatabaseSink() override;

    void Flush();

    cow_String Name() const override;
    int AddTable(const rfm_TableInfo& table) override;
    void InsertRow(int table, std::int64_t oid, const rfm_Cell* cells) override;
    void InsertElement(unsigned classId, std::int64_t oid, std::int64_t position,
                       const rfm_Element& element) override;
    std::int64_t InsertArray(rfm_Type type, const void* values, std::int64_t length) override;
    void InsertRoot(const cow_String& name, unsigned classId, std::int64_t oid) override;

private:
    rfm_Database& database;
    std::vector<std::unique_ptr<rfm_Inserter>> inserters;
    std::unique_ptr<rfm_ElementInserter> elements;
};

/// Gets rows out of a file. Each table has a few cursors, so that rows that come in order are reached by a
/// step even where rows of one table lie open within each other.
class OVR_EXPORT rom_DatabaseSource final : public rom_RowSource
{
public:
    explicit rom_DatabaseSource(rfm_Database& database);
    ~rom_DatabaseSource() override;

    cow_String Name() const override;
    std::int64_t Size() const override;
    int FindTable(const rfm_TableInfo& table) override;
    bool OpenRow(int table, std::int64_t oid, rom_OpenRow& row) override;
    void CloseRow(int table, const rom_OpenRow& row) noexcept override;
    void* OpenElements(unsigned classId, std::int64_t oid) override;
    bool NextElement(void* place, rfm_Element& element) override;
    void CloseElements(void* place) noexcept override;
    std::int64_t OpenArray(std::int64_t handle, rfm_Type type) override;
    void ReadArray(void* values) override;

private:
    struct Table
    {
        rfm_TableForm form;
        std::vector<std::unique_ptr<rfm_Cursor>> cursors;
        std::vector<rfm_Cursor*> freeCursors;
    };

    rfm_Cursor& TakeCursor(Table& table, std::int64_t oid);

    rfm_Database& database;
    std::vector<Table> tables;
    std::vector<std::unique_ptr<rfm_ElementCursor>> elementCursors;
    std::vector<rfm_ElementCursor*> freeElementCursors;
};

/// Throws unless a table of a store fits its class as this release has it; the message says whether the store
/// or the release is the older one.
OVR_EXPORT void rom_RequireForm(const rfm_Database& database, const rfm_TableInfo& found,
                                const rfm_TableInfo& expected);
