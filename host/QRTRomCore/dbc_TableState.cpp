#include "dbc_TableState.h"

#include <algorithm>

std::vector<int> dbc_MatchColumns(const dbc_Form& from, const dbc_Form& to)
{
    std::vector<int> sources;
    for (int i = 0; i < to.CellCount(); ++i)
    {
        const dbc_Form::Field found = from.Find(to.ColumnName(i).View());
        const bool fits = found.cell >= 0 && !found.isReference &&
                          from.Table().columns[static_cast<std::size_t>(found.cell)].kind ==
                              to.Table().columns[static_cast<std::size_t>(i)].kind;
        sources.push_back(fits ? found.cell : -1);
    }
    return sources;
}

dbc_TableState dbc_TableState::InForm(const dbc_Form& newForm) const
{
    dbc_TableState changed{&newForm, layers};
    const std::vector<int> kept = dbc_MatchColumns(*form, newForm);
    for (dbc_Layer& layer : changed.layers)
    {
        std::vector<int> source;
        for (const int column : kept)
            source.push_back(column < 0 ? -1 : layer.source[static_cast<std::size_t>(column)]);
        layer.source = std::move(source);
    }
    return changed;
}

namespace
{
std::unique_ptr<rfm_Cursor> CursorOn(const dbc_Stores& stores, const rfm_TableForm& physical)
{
    // The old store's own connection names it in errors.
    if (!(physical.schema == rfm_OldSchema))
        return std::make_unique<rfm_Cursor>(stores.working, physical);
    rfm_TableForm own = physical;
    own.schema = cow_String();
    return std::make_unique<rfm_Cursor>(stores.old, own);
}
} // namespace

dbc_StateCursor::dbc_StateCursor(const dbc_Stores& stores, const dbc_TableState& state,
                                 const std::vector<rfm_ClassIdChange>& changes)
    : state(state), changes(changes)
{
    for (std::size_t i = 0; i < state.layers.size(); ++i)
        sources.push_back({i, CursorOn(stores, state.layers[i].physical)});
}

bool dbc_StateCursor::SeekFrom(std::int64_t oid)
{
    for (Source& source : sources)
    {
        source.cursor->Leave();
        source.isThere = source.cursor->SeekFrom(oid);
    }
    return FindLowest();
}

bool dbc_StateCursor::Next()
{
    const std::int64_t last = Oid();
    for (Source& source : sources)
    {
        if (source.isThere && source.cursor->Key() == last)
            source.isThere = source.cursor->Next();
    }
    return FindLowest();
}

bool dbc_StateCursor::Leave()
{
    current = nullptr;
    for (Source& source : sources)
    {
        source.cursor->Leave();
        source.isThere = false;
    }
    return sources.size() == state.layers.size();
}

bool dbc_StateCursor::FindLowest()
{
    current = nullptr;
    for (Source& source : sources)
    {
        if (source.isThere && (!current || source.cursor->Key() <= current->cursor->Key()))
            current = &source;
    }
    return current != nullptr;
}

bool dbc_StateCursor::Seek(std::int64_t oid)
{
    for (auto source = sources.rbegin(); source != sources.rend(); ++source)
    {
        current = &*source;
        if (source->cursor->Seek(oid))
            return true;
    }
    current = nullptr;
    return false;
}

void dbc_StateCursor::Take(dbc_CellRow& row) const
{
    row.Begin(Oid());
    rfm_Cell* cells = row.Cells();
    const rfm_Cell* stored = current->cursor->Cells();
    const std::vector<int>& source = state.layers[current->layer].source;
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        if (source[i] < 0)
            continue;
        cells[i] = stored[source[i]];
        if (changes.empty() || state.form->UseOf(static_cast<int>(i)) != dbc_Form::Use::ClassId)
            continue;
        for (const rfm_ClassIdChange& change : changes)
        {
            if (cells[i].Is(rfm_CellKind::Integer) && cells[i].integer == change.from)
            {
                cells[i].integer = change.to;
                break;
            }
        }
    }
}

std::int64_t dbc_LastOid(const dbc_Stores& stores, const dbc_TableState& state)
{
    std::int64_t last = 0;
    for (const dbc_Layer& layer : state.layers)
    {
        rfm_Statement statement(stores.working,
                                "SELECT MAX(" + rfm_Quoted(layer.physical.keyColumn) + ") FROM " +
                                    layer.physical.SqlName(),
                                layer.physical.name);
        const rfm_Cell cell = statement.Step() ? statement.Column(0) : rfm_Cell::Null();
        if (cell.Is(rfm_CellKind::Integer))
            last = std::max(last, cell.integer);
    }
    return last;
}
