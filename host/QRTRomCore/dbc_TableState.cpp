#include "dbc_TableState.h"

#include <algorithm>

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
/// The store that names itself in errors, and the table as it knows it.
struct Place
{
    rfm_Database& store;
    rfm_TableForm form;
};

Place PlaceOf(const dbc_Stores& stores, const rfm_TableForm& physical)
{
    if (!(physical.schema == rfm_OldSchema))
        return {stores.working, physical};
    rfm_TableForm own = physical;
    own.schema = cow_String();
    return {stores.old, own};
}

std::unique_ptr<rfm_Cursor> CursorOn(const dbc_Stores& stores, const rfm_TableForm& physical)
{
    const Place place = PlaceOf(stores, physical);
    return std::make_unique<rfm_Cursor>(place.store, place.form);
}

bool IsWhole(const dbc_Layer& layer, const dbc_Form& form)
{
    if (layer.physical.columns.size() != layer.source.size())
        return false;
    for (std::size_t i = 0; i < layer.source.size(); ++i)
    {
        const bool isSame = layer.source[i] == static_cast<int>(i) &&
                            layer.physical.columns[i].kind == form.Table().columns[i].kind;
        if (!isSame)
            return false;
    }
    return true;
}
} // namespace

dbc_StateCursor::dbc_StateCursor(const dbc_Stores& stores, const dbc_TableState& state,
                                 const std::vector<rfm_ClassIdChange>& changes)
    : state(state), changes(changes)
{
    for (std::size_t i = 0; i < state.layers.size(); ++i)
    {
        const dbc_Layer& layer = state.layers[i];
        sources.push_back({i, CursorOn(stores, layer.physical), IsWhole(layer, *state.form)});
    }
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
    const rfm_Cell* stored = current->cursor->Cells();
    if (current->isWhole && changes.empty())
    {
        row.Begin(Oid(), stored);
        return;
    }
    row.Begin(Oid());
    rfm_Cell* cells = row.Cells();
    const std::vector<int>& source = state.layers[current->layer].source;
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        if (source[i] < 0)
            continue;
        const dbc_Form::Use use = state.form->UseOf(static_cast<int>(i));
        cells[i] = dbc_TakenOver(stored[source[i]], use);
        if (use == dbc_Form::Use::ClassId)
            ChangeClassId(cells[i]);
    }
}

void dbc_StateCursor::ChangeClassId(rfm_Cell& cell) const
{
    for (const rfm_ClassIdChange& change : changes)
    {
        if (!cell.Is(rfm_CellKind::Integer) || cell.integer != change.from)
            continue;
        cell.integer = change.to;
        return;
    }
}

std::int64_t dbc_LastOid(const dbc_Stores& stores, const dbc_TableState& state)
{
    std::int64_t last = 0;
    for (const dbc_Layer& layer : state.layers)
    {
        const Place place = PlaceOf(stores, layer.physical);
        rfm_Statement statement(
            place.store, "SELECT MAX(" + rfm_Quoted(place.form.keyColumn) + ") FROM " + place.form.SqlName(),
            place.form.name);
        const rfm_Cell cell = statement.Step() ? statement.Column(0) : rfm_Cell::Null();
        if (cell.Is(rfm_CellKind::Integer))
            last = std::max(last, cell.integer);
    }
    return last;
}
