#include "dbc_ElementTable.h"

bool dbc_ElementRow::HasField(const rfm_FieldHandle& field) const
{
    return Find(field) != nullptr;
}

bool dbc_ElementRow::HasValue(const rfm_FieldHandle& field) const
{
    const rfm_Cell* cell = Find(field);
    return cell && !cell->IsNull();
}

const rfm_Cell* dbc_ElementRow::Find(const rfm_FieldHandle& field) const
{
    const std::string_view name = field.Name().View();
    if (name == "Key")
        return &element.key;
    if (name == "Value")
        return &element.value;
    if (name == "ClassID")
        return &element.targetClassId;
    return name == "OID" ? &element.targetOid : nullptr;
}

const rfm_Cell& dbc_ElementRow::Get(const rfm_FieldHandle& field) const
{
    const rfm_Cell* cell = Find(field);
    if (!cell)
        Raise(field, "An element has no such field.");
    return *cell;
}

std::int64_t dbc_ElementRow::GetInt(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = Get(field);
    if (!cell.Is(rfm_CellKind::Integer))
        Raise(field, "Expected an integer.");
    return cell.integer;
}

bool dbc_ElementRow::GetBool(const rfm_FieldHandle& field) const
{
    Raise(field, "An element holds no boolean.");
}

double dbc_ElementRow::GetDouble(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = Get(field);
    if (!cell.Is(rfm_CellKind::Real))
        Raise(field, "Expected a real number.");
    return cell.real;
}

cow_String dbc_ElementRow::GetText(const rfm_FieldHandle& field) const
{
    const rfm_Cell& cell = Get(field);
    if (!cell.Is(rfm_CellKind::Text))
        Raise(field, "Expected a text.");
    return cow_String(cell.bytes, cell.size);
}

rfm_Cell& dbc_ElementRow::ForWriting(const rfm_FieldHandle& field)
{
    if (!isWritable)
        Raise(field, "An input row can't be written to.");
    return const_cast<rfm_Cell&>(Get(field));
}

void dbc_ElementRow::PutInt(const rfm_FieldHandle& field, std::int64_t value)
{
    ForWriting(field) = rfm_Cell::Integer(value);
}

void dbc_ElementRow::PutText(const rfm_FieldHandle& field, const cow_String& value)
{
    rfm_Cell& cell = ForWriting(field);
    cow_String& kept = &cell == &element.key ? keyText : valueText;
    kept = value;
    cell = rfm_Cell::Text(kept.View());
}

void dbc_ElementRow::PutDouble(const rfm_FieldHandle& field, double value)
{
    ForWriting(field) = rfm_Cell::Real(value);
}

void dbc_ElementRow::PutBool(const rfm_FieldHandle& field, bool)
{
    Raise(field, "An element holds no boolean.");
}

void dbc_ElementRow::PutAbsent(const rfm_FieldHandle& field)
{
    ForWriting(field) = rfm_Cell::Null();
}

void dbc_ElementRow::Begin(std::int64_t newPosition)
{
    position = newPosition;
    element = {rfm_Cell::Null(), rfm_Cell::Null(), rfm_Cell::Null(), rfm_Cell::Null()};
}

void dbc_ElementRow::Raise(const rfm_FieldHandle& field, const char* message) const
{
    database.Raise(message, rfm_Elements::name, position, field.Name());
}

dbc_StoredElements::dbc_StoredElements(dbc_StageContext& context, const cow_String& name, unsigned classId,
                                       std::int64_t oid, bool isNew)
    : context(context),
      name(name),
      classId(classId),
      oid(oid),
      cursor(isNew ? context.stores.working : context.stores.old,
             isNew ? cow_String(rfm_ScratchSchema) : cow_String()),
      row(context.stores.old, false)
{}

std::int64_t dbc_StoredElements::RowCount() const
{
    std::int64_t count = 0;
    for (const dbc_Row* each = First(); each; each = Next())
        ++count;
    return count;
}

const dbc_Row* dbc_StoredElements::Find(std::int64_t position) const
{
    const dbc_Row* each = First();
    while (each && each->Oid() != position)
        each = Next();
    return each;
}

const dbc_Row* dbc_StoredElements::First() const
{
    if (oid == 0)
        return nullptr;
    cursor.Open(classId, oid);
    row.Begin(-1);
    return Next();
}

const dbc_Row* dbc_StoredElements::Next() const
{
    const std::int64_t position = row.Oid() + 1;
    row.Begin(position);
    if (!cursor.Next(row.element))
        return nullptr;
    for (const rfm_ClassIdChange& change : context.changes)
    {
        rfm_Cell& target = row.element.targetClassId;
        if (!target.Is(rfm_CellKind::Integer) || target.integer != change.from)
            continue;
        target.integer = change.to;
        break;
    }
    return &row;
}

void dbc_StoredElements::RaiseReadOnly() const
{
    context.stores.old.Raise("The elements of an input row can't be changed.", name);
}

dbc_Row& dbc_StoredElements::Edit(std::int64_t)
{
    RaiseReadOnly();
}

dbc_Row& dbc_StoredElements::NewRow()
{
    RaiseReadOnly();
}

dbc_Row& dbc_StoredElements::NewRow(std::int64_t)
{
    RaiseReadOnly();
}

void dbc_StoredElements::Commit(dbc_Row&)
{
    RaiseReadOnly();
}

dbc_NewElements::dbc_NewElements(dbc_StageContext& context, const cow_String& name, unsigned classId,
                                 std::int64_t oid, rfm_ElementInserter& inserter,
                                 std::vector<dbc_FinishedCollection>& finished)
    : context(context),
      name(name),
      classId(classId),
      oid(oid),
      inserter(inserter),
      finished(finished),
      row(context.stores.working, true)
{}

dbc_NewElements::~dbc_NewElements()
{
    finished.push_back({classId, oid, length});
}

void dbc_NewElements::Raise(const char* message) const
{
    context.stores.working.Raise(message, name, oid);
}

const dbc_Row* dbc_NewElements::Find(std::int64_t) const
{
    Raise("The elements of a collection in the making can't be read.");
}

const dbc_Row* dbc_NewElements::First() const
{
    return Find(0);
}

const dbc_Row* dbc_NewElements::Next() const
{
    return Find(0);
}

dbc_Row& dbc_NewElements::Edit(std::int64_t)
{
    Raise("The elements of a collection in the making can't be changed.");
}

dbc_Row& dbc_NewElements::NewRow()
{
    row.Begin(length);
    return row;
}

dbc_Row& dbc_NewElements::NewRow(std::int64_t position)
{
    if (position != length)
        Raise("Elements are added one behind the other.");
    return NewRow();
}

void dbc_NewElements::Commit(dbc_Row& committed)
{
    if (&committed != &row)
        Raise("A row was committed that the collection did not hand out.");
    inserter.Insert(classId, oid, length, row.element);
    ++length;
}
