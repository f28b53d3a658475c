#include "dbc_StageTables.h"

#include <algorithm>

dbc_Layer dbc_NewLayer(dbc_StageContext& context, const dbc_Form& form)
{
    dbc_Layer layer;
    layer.physical = rfm_TableForm::Of(form.Table());
    layer.physical.name.append("#").append(std::to_string(++context.scratchTables).c_str());
    layer.physical.schema = rfm_ScratchSchema;
    for (int i = 0; i < form.CellCount(); ++i)
        layer.source.push_back(i);
    context.stores.working.CreateTable(layer.physical);
    return layer;
}

dbc_OutputRows::dbc_OutputRows(dbc_StageContext& context, dbc_TableState newState)
    : context(context), state(std::move(newState)), cells(static_cast<std::size_t>(state.form->CellCount()))
{}

dbc_OutputRows::~dbc_OutputRows() = default;

void dbc_OutputRows::BeginStep()
{
    const dbc_Layer layer = dbc_NewLayer(context, *state.form);
    // Scratch rows live too short to need a check number.
    const auto inserter = std::make_shared<rfm_Inserter>(context.stores.working, layer.physical);
    BeginStep({layer,
               [this, inserter](std::int64_t oid, const rfm_Cell* row)
               { inserter->Insert(oid, Marked(row), rfm_Cell::Null()); },
               [inserter] { inserter->Flush(); }});
}

void dbc_OutputRows::BeginStep(dbc_RowSink sink)
{
    stepSink = std::move(sink);
    state.layers.insert(state.layers.begin(), stepSink.layer);
}

void dbc_OutputRows::PutStepRow(const dbc_CellRow& row)
{
    stepSink.put(row.Oid(), row.Cells());
    isUnread = true;
}

dbc_CellRow& dbc_OutputRows::NewRow(std::int64_t oid)
{
    std::unique_ptr<dbc_CellRow> row;
    if (spare.empty())
    {
        row = std::make_unique<dbc_CellRow>(context.stores.working, *state.form, true);
    }
    else
    {
        row = std::move(spare.back());
        spare.pop_back();
    }
    row->Begin(oid);
    row->TakeFreshUid();
    open.push_back(std::move(row));
    return *open.back();
}

void dbc_OutputRows::Commit(dbc_CellRow& row)
{
    const auto found =
        std::find_if(open.begin(), open.end(), [&row](const auto& each) { return each.get() == &row; });
    if (found == open.end())
        context.stores.working.Raise("A row was committed that the table did not hand out.",
                                     state.form->Name(), row.Oid());
    if (!others)
    {
        state.layers.push_back(dbc_NewLayer(context, *state.form));
        others = std::make_unique<rfm_Inserter>(context.stores.working, state.layers.back().physical,
                                                rfm_OnConflict::Replace);
    }
    others->Insert(row.Oid(), Marked(row.Cells()), rfm_Cell::Null());
    isUnread = true;
    // What was edited is read again from now on.
    std::unique_ptr<dbc_CellRow> done = std::move(*found);
    open.erase(found);
    spare.push_back(std::move(done));
}

/// The cells of a row, references that nothing was put into marked as such.
const rfm_Cell* dbc_OutputRows::Marked(const rfm_Cell* from)
{
    for (std::size_t i = 0; i < cells.size(); ++i)
    {
        cells[i] = from[i];
        const bool isUnset = cells[i].Is(rfm_CellKind::Unset);
        if (isUnset && state.form->UseOf(static_cast<int>(i)) == dbc_Form::Use::ClassId)
            cells[i] = rfm_Cell::Integer(rfm_UnsetReference);
    }
    return cells.data();
}

bool dbc_OutputRows::Flush()
{
    if (stepSink.flush)
        stepSink.flush();
    if (others)
        others->Flush();
    return std::exchange(isUnread, false);
}

void dbc_OutputRows::RequireCommitted() const
{
    if (!open.empty())
        context.stores.working.Raise("A conversion made a row and did not commit it.", state.form->Name(),
                                     open.front()->Oid());
}

template <class Kind>
dbc_StageTable<Kind>::dbc_StageTable(dbc_StageContext& context, const dbc_TableState& state)
    : context(context), input(&state)
{}

template <class Kind>
dbc_StageTable<Kind>::dbc_StageTable(dbc_StageContext& context, dbc_OutputRows& rows,
                                     std::function<void()> beforeRead)
    : context(context), rows(&rows), beforeRead(std::move(beforeRead))
{}

template <class Kind>
void dbc_StageTable<Kind>::Prepare(Reader& reader) const
{
    if (rows)
    {
        beforeRead();
        if (rows->Flush())
        {
            for (Reader* each : {&finder, &walker})
            {
                if (each->cursor && !each->cursor->Leave())
                    each->cursor.reset();
            }
        }
    }
    if (reader.cursor)
        return;
    reader.cursor = std::make_unique<dbc_StateCursor>(context.stores, State(), context.changes);
    if (!reader.row)
        reader.row = std::make_unique<dbc_CellRow>(context.stores.old, *State().form, false);
}

template <class Kind>
const dbc_Row* dbc_StageTable<Kind>::Taken(Reader& reader, bool isThere) const
{
    if (!isThere)
        return nullptr;
    reader.cursor->Take(*reader.row);
    return reader.row.get();
}

template <class Kind>
std::int64_t dbc_StageTable<Kind>::RowCount() const
{
    Reader counter;
    Prepare(counter);
    std::int64_t count = 0;
    for (bool isThere = counter.cursor->SeekFrom(INT64_MIN); isThere; isThere = counter.cursor->Next())
        ++count;
    return count;
}

template <class Kind>
const dbc_Row* dbc_StageTable<Kind>::Find(std::int64_t oid) const
{
    Prepare(finder);
    return Taken(finder, finder.cursor->Seek(oid));
}

template <class Kind>
const dbc_Row* dbc_StageTable<Kind>::First() const
{
    Prepare(walker);
    return Taken(walker, walker.cursor->SeekFrom(INT64_MIN));
}

/// A walk through an output table goes on behind the last row, whatever was put in meanwhile.
template <class Kind>
const dbc_Row* dbc_StageTable<Kind>::Next() const
{
    if (!walker.row)
        return First();
    const std::int64_t last = walker.row->Oid();
    Prepare(walker);
    if (last == INT64_MAX)
        return nullptr;
    const bool goesOn = walker.cursor->IsOn(last);
    return Taken(walker, goesOn ? walker.cursor->Next() : walker.cursor->SeekFrom(last + 1));
}

template <class Kind>
dbc_OutputRows& dbc_StageTable<Kind>::Writable()
{
    if (!rows)
        context.stores.old.Raise("An input table can't be written to.", Name());
    return *rows;
}

template <class Kind>
dbc_Row& dbc_StageTable<Kind>::Edit(std::int64_t oid)
{
    dbc_OutputRows& writable = Writable();
    Prepare(finder);
    if (!finder.cursor->Seek(oid))
        context.stores.old.Raise("There is no row of this number.", Name(), oid);
    dbc_CellRow& row = writable.NewRow(oid);
    finder.cursor->Take(row);
    row.KeepTexts();
    return row;
}

template <class Kind>
dbc_Row& dbc_StageTable<Kind>::NewRow()
{
    return Writable().NewRow(context.numbers.Next(ClassId()));
}

template <class Kind>
dbc_Row& dbc_StageTable<Kind>::NewRow(std::int64_t oid)
{
    context.numbers.Raise(ClassId(), oid);
    return Writable().NewRow(oid);
}

template <class Kind>
void dbc_StageTable<Kind>::Commit(dbc_Row& row)
{
    Writable().Commit(static_cast<dbc_CellRow&>(row));
}

template class dbc_StageTable<dbc_TableRfm>;
template class dbc_StageTable<dbc_TableMem>;
