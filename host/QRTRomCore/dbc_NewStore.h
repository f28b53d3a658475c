#pragma once

#include "dbc_Defaults.h"
#include "dbc_Plan.h"
#include "dbc_StageTables.h"
#include "rfm_ElementStore.h"
#include "rfm_Inserter.h"

#include <functional>
#include <set>

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
    /// Makes the table of a form of this release before any other rows are taken, and returns where rows are
    /// put into it. `TakeTable` then leaves these as they are.
    dbc_RowSink BeginTable(const dbc_Form& form);
    /// For after all tables.
    void TakeElements();
    void TakeRoots();
    void FillDefaults();
    /// Tells of a class whose rows went with it.
    void EndClass(unsigned classId) { ended.insert(classId); }
    /// Throws if a reference leads nowhere, or to a row of another class than its attribute takes. What no
    /// named object reaches is left out if it refers to rows that went with their class.
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
        std::vector<rfm_CellKind> plainKinds; ///< of cells that stay without another look
        std::vector<rfm_Cell> cells;

        void Flush();
    };

    Table& OpenTable(const dbc_Form& form);
    void PutRow(Table& table, std::int64_t oid, const rfm_Cell* cells);
    rfm_Cell CellToPut(const Table& table, std::size_t position, std::int64_t oid,
                       const rfm_Cell& cell) const;
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

    bool LeadsToEnded(const std::vector<rfm_ReferenceColumn>& references) const;
    bool HasRow(const rfm_TableForm& from, const std::string& condition);
    void LeaveOutUnreached();
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
    std::vector<rfm_Root> roots;
    std::set<unsigned> ended;
};
