#pragma once

#include "dbc_InputDatabase.h"
#include "dbc_OutputDatabase.h"
#include "dbc_TableState.h"
#include "rfm_Inserter.h"

#include <functional>
#include <map>

/// Gives rows their numbers, so that no two rows of a class share one.
class dbc_RowNumbers
{
public:
    std::int64_t Next(unsigned classId) { return ++last[classId]; }
    void Raise(unsigned classId, std::int64_t oid) { last[classId] = std::max(last[classId], oid); }
    bool IsKnown(unsigned classId) const { return last.count(classId) != 0; }

private:
    std::map<unsigned, std::int64_t> last;
};

/// What all tables of a stage share.
struct dbc_StageContext
{
    dbc_Stores stores;
    const std::vector<rfm_ClassIdChange>& changes;
    dbc_RowNumbers& numbers;
    int& scratchTables; ///< made so far
};

/// Adds a table of the scratch file for rows of a form, and returns the layer.
dbc_Layer dbc_NewLayer(dbc_StageContext& context, const dbc_Form& form);

/// Where the rows of a step go: the layer that holds them then, and how they are put there.
struct dbc_RowSink
{
    dbc_Layer layer;
    /// Takes the cells of a row as `dbc_CellRow` has them.
    std::function<void(std::int64_t oid, const rfm_Cell* cells)> put;
    std::function<void()> flush;
};

/// Rows that are put into a table in a stage: those of its own step go below, any others above.
class dbc_OutputRows
{
public:
    /// `state` is the table as the stage has it so far, and grows by the rows that are put in.
    dbc_OutputRows(dbc_StageContext& context, dbc_TableState state);
    ~dbc_OutputRows();

    const dbc_TableState& State() const { return state; }

    /// Puts in rows of the table's own step.
    void BeginStep();
    /// The same, with rows that go elsewhere.
    void BeginStep(dbc_RowSink sink);
    void PutStepRow(const dbc_CellRow& row);

    dbc_CellRow& NewRow(std::int64_t oid);
    void Commit(dbc_CellRow& row);

    /// Makes what was put in readable; returns whether there was anything since.
    bool Flush();
    /// Throws if a row was made and not committed.
    void RequireCommitted() const;
    bool IsEmpty() const { return state.layers.empty(); }

private:
    const rfm_Cell* Marked(const rfm_Cell* from);

    dbc_StageContext& context;
    dbc_TableState state;
    dbc_RowSink stepSink;
    std::unique_ptr<rfm_Inserter> others;
    bool isUnread = false;
    std::vector<rfm_Cell> cells;
    std::vector<std::unique_ptr<dbc_CellRow>> open;
    std::vector<std::unique_ptr<dbc_CellRow>> spare;
};

/// A table of a stage as conversion functions see it.
template <class Kind>
class dbc_StageTable final : public Kind
{
public:
    /// An input table; `state` must stay.
    dbc_StageTable(dbc_StageContext& context, const dbc_TableState& state);
    /// An output table. `beforeRead` makes sure that the rows are there.
    dbc_StageTable(dbc_StageContext& context, dbc_OutputRows& rows, std::function<void()> beforeRead);

    unsigned ClassId() const override { return State().form->ClassId(); }
    const cow_String& Name() const override { return State().form->Name(); }
    int Version() const override { return State().form->Version(); }

    std::int64_t RowCount() const override;
    const dbc_Row* Find(std::int64_t oid) const override;
    const dbc_Row* First() const override;
    const dbc_Row* Next() const override;
    dbc_Row& Edit(std::int64_t oid) override;
    dbc_Row& NewRow() override;
    dbc_Row& NewRow(std::int64_t oid) override;
    void Commit(dbc_Row& row) override;

private:
    /// A place in the table, and the row there.
    struct Reader
    {
        std::unique_ptr<dbc_StateCursor> cursor;
        std::unique_ptr<dbc_CellRow> row;
    };

    const dbc_TableState& State() const { return rows ? rows->State() : *input; }
    void Prepare(Reader& reader) const;
    const dbc_Row* Taken(Reader& reader, bool isThere) const;
    dbc_OutputRows& Writable();

    dbc_StageContext& context;
    const dbc_TableState* input = nullptr;
    dbc_OutputRows* rows = nullptr;
    std::function<void()> beforeRead;
    mutable Reader finder;
    mutable Reader walker;
};

extern template class dbc_StageTable<dbc_TableRfm>;
extern template class dbc_StageTable<dbc_TableMem>;
