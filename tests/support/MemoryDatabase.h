#pragma once

#include "MemoryRow.h"
#include "dbc_DatabaseConverter.h"
#include "dbc_DatabaseConverterHolder.h"
#include "dbc_InputDatabase.h"
#include "dbc_OutputDatabase.h"

#include <iterator>
#include <list>

/// A table of rows that a test makes up. What it does not need throws std::logic_error.
class MemoryTable final : public dbc_TableRfm
{
public:
    MemoryTable() = default;
    /// A table whose new rows have these fields, without values.
    explicit MemoryTable(MemoryRow::Fields newRow) : newRow(std::move(newRow)) {}

    void Insert(std::int64_t oid, MemoryRow::Fields fields)
    {
        rows.insert_or_assign(oid, MemoryRow(std::move(fields), oid));
    }
    /// The fields of all rows, by number.
    std::map<std::int64_t, MemoryRow::Fields> All() const
    {
        std::map<std::int64_t, MemoryRow::Fields> all;
        for (const auto& [oid, row] : rows)
            all[oid] = row.All();
        return all;
    }

    unsigned ClassId() const override { return Missing<unsigned>(); }
    const cow_String& Name() const override { return Missing<const cow_String&>(); }
    int Version() const override { return Missing<int>(); }
    std::int64_t RowCount() const override { return static_cast<std::int64_t>(rows.size()); }
    const dbc_Row* Find(std::int64_t oid) const override
    {
        const auto found = rows.find(oid);
        return found == rows.end() ? nullptr : &found->second;
    }
    const dbc_Row* First() const override { return Missing<const dbc_Row*>(); }
    const dbc_Row* Next() const override { return Missing<const dbc_Row*>(); }
    dbc_Row& Edit(std::int64_t oid) override { return open.emplace_back(rows.at(oid)); }
    dbc_Row& NewRow() override { return NewRow(rows.empty() ? 1 : std::prev(rows.end())->first + 1); }
    dbc_Row& NewRow(std::int64_t oid) override { return open.emplace_back(newRow, oid); }
    void Commit(dbc_Row& row) override
    {
        rows.insert_or_assign(row.Oid(), dynamic_cast<MemoryRow&>(row));
        open.remove_if([&row](const MemoryRow& one) { return &one == &row; });
    }

private:
    template <class T>
    static T Missing()
    {
        throw std::logic_error("no test needs this of a table");
    }

    MemoryRow::Fields newRow;
    std::map<std::int64_t, MemoryRow> rows;
    std::list<MemoryRow> open;
};

/// The two sides of a store as a conversion finds them, for as long as this lives: tables by class id, made
/// by the test beforehand.
class MemoryDatabases final : public dbc_InputDatabase, public dbc_OutputDatabase
{
public:
    MemoryDatabases()
    {
        converter.SetDatabases(this, this);
        Holder().SetDatabaseConverter(&converter);
    }
    MemoryDatabases(const MemoryDatabases&) = delete;
    MemoryDatabases& operator=(const MemoryDatabases&) = delete;
    ~MemoryDatabases() override { Holder().SetDatabaseConverter(nullptr); }

    std::map<unsigned, MemoryTable> input;
    std::map<unsigned, MemoryTable> output;

    bool HasInputTable(unsigned classId) const override { return input.contains(classId); }
    dbc_TableRfm* GetInputTable(unsigned classId) override
    {
        const auto found = input.find(classId);
        return found == input.end() ? nullptr : &found->second;
    }
    dbc_TableRfm* GetOutputTable(unsigned classId) override { return &output.at(classId); }

    std::unique_ptr<dbc_Table> ElementsOf(const cow_String&, unsigned, std::int64_t) override
    {
        throw std::logic_error("no test needs elements");
    }
    rfm_Array<double, rfm_TypeDouble> ArrayDouble(std::int64_t) override
    {
        throw std::logic_error("no test needs arrays");
    }
    dbc_TableMem* GetTempTable(unsigned, int) override
    {
        throw std::logic_error("no test needs temporary tables");
    }
    std::unique_ptr<dbc_Table> NewElements(const cow_String&, unsigned, cls_CollectionType,
                                           std::int64_t&) override
    {
        throw std::logic_error("no test needs elements");
    }
    std::int64_t NewNumbers(cls_CollectionType, const std::vector<double>&, int) override
    {
        throw std::logic_error("no test needs arrays");
    }

private:
    static dbc_DatabaseConverterHolder& Holder()
    {
        return *omi_Singleton<dbc_DatabaseConverterHolder>::Instance();
    }

    dbc_DatabaseConverter converter;
};
