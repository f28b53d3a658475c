#pragma once

#include "rfm_Cursor.h"
#include "rfm_RowCopy.h"

#include <map>
#include <memory>
#include <unordered_set>

/// The rows of a store that can be reached from its named objects. Takes memory for each of them.
class dbc_Reach
{
public:
    explicit dbc_Reach(rfm_Database& store);
    ~dbc_Reach();

    /// Tells of a table, and which of its columns are references. For before the walk.
    void AddTable(unsigned classId, const rfm_TableForm& form,
                  const std::vector<rfm_ReferenceColumn>& references);
    /// Goes from a row to all that it refers to, and on from there. References that lead nowhere are passed
    /// by.
    void Walk(unsigned classId, std::int64_t oid);
    /// Takes all rows and elements out of the store that no walk has met.
    void RemoveOthers();

private:
    struct Table
    {
        rfm_TableForm form;
        std::vector<rfm_ReferenceColumn> references;
        std::unique_ptr<rfm_Cursor> cursor;
        std::unordered_set<std::int64_t> reached;
    };

    void Meet(std::int64_t classId, const rfm_Cell& oid);
    void Follow(unsigned classId, Table& table, std::int64_t oid);
    void RemoveRows(const Table& table);
    void RemoveElements();

    rfm_Database& store;
    std::map<unsigned, Table> tables;
    std::vector<std::pair<unsigned, std::int64_t>> waiting;
};
