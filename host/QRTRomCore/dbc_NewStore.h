#pragma once

#include "dbc_Defaults.h"
#include "dbc_Plan.h"
#include "dbc_TableState.h"
#include "rfm_ElementStore.h"
#include "rfm_Inserter.h"

#include <functional>

/// The store that an upgrade makes: takes the tables when they have reached their last form, puts defaults
/// where nothing was put, and checks every reference.
class dbc_NewStore
{
public:
    dbc_NewStore(const dbc_Stores& stores, const dbc_Forms& forms,
                 const std::vector<rfm_ClassIdChange>& changes, std::function<void(std::int64_t)> progress);
    ~dbc_NewStore();

    /// Copies all arrays of the old store. For before any stage, as stages add arrays.
    void TakeArrays();
    void TakeTable(const dbc_TableState& state);
    /// Makes the table of a form of this release before any other rows are taken, and returns the layer of
    /// the rows that are put into it, which `TakeTable` then leaves as they are.
    dbc_Layer BeginTable(const dbc_Form& form);
    void PutRow(unsigned classId, std::int64_t oid, const rfm_Cell* cells);
    void FlushRows(unsigned classId);
    /// For after all tables.
    void TakeElements();
    void TakeRoots();
    void FillDefaults();
    /// Throws if a reference leads nowhere, or to a row of another class than its attribute takes.
    void RequireReferences();

private:
    struct Table
    {
        const dbc_Form* form;
        rfm_TableForm physical;
        rfm_RowNumbers numbers;
        std::vector<rfm_ReferenceColumn> references;
        std::unique_ptr<rfm_Inserter> inserter; ///< made when it is needed
        bool isBegun = false;                   ///< has rows from before the last stage
        std::vector<rfm_CopyColumn> begunColumns;
        std::vector<rfm_Cell> cells;
    };

    Table& OpenTable(const dbc_Form& form);
    static std::vector<rfm_ReferenceColumn> ReferencesOf(const dbc_Form& form);
    Table& TableOf(unsigned classId);
    void CopyLayer(Table& table, const dbc_TableState& state, std::size_t layer);
    rfm_CopyColumn ColumnFor(const dbc_Form& form, const dbc_Layer& layer, int cell);
    rfm_Cell DefaultOf(const dbc_Form& form, int cell);
    void CopyElements(rfm_Database& owner, const char* schema);

    bool NeedsPass(const Table& table) const;
    bool ChangeClassIds(const Table& table, std::vector<rfm_Cell>& cells) const;
    void FillTable(Table& table);
    bool FillRow(Table& table, std::vector<rfm_Cell>& cells);
    std::int64_t MakeRow(const dbc_DefaultRow& row);
    void MakeElements(const dbc_DefaultRow& row, std::int64_t oid);
    rfm_Cell MakeArray(const dbc_DefaultRow& row);
    void MakeTargets(const dbc_DefaultRow& row, std::vector<rfm_Cell>& cells);
    void Insert(Table& table, std::int64_t oid, const std::vector<rfm_Cell>& cells);
    void Flush();

    void RequireReferences(const Table& table, const rfm_ReferenceColumn& column);
    void RequireRows(const rfm_TableForm& from, const cow_String& classColumn, const cow_String& oidColumn,
                     const rfm_ReferenceColumn::Range& range);
    void RequireFits(const Table& table, const rfm_ReferenceColumn& column, std::int64_t classId);
    /// Names the first row for which `condition` holds.
    [[noreturn]] void RaiseReference(const rfm_TableForm& from, const cow_String& oidColumn,
                                     const std::string& condition, const std::string& message);

    dbc_Stores stores;
    const dbc_Forms& forms;
    const std::vector<rfm_ClassIdChange>& changes;
    std::function<void(std::int64_t)> progress;
    dbc_Defaults defaults;
    std::map<unsigned, Table> tables;
    std::vector<rfm_ReferenceColumn> elementReferences;
    std::unique_ptr<rfm_ElementInserter> elements;
};
