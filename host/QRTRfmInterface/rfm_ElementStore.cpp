#include "rfm_ElementStore.h"

#include "rfm_Check.h"
#include "rfm_Database.h"
#include "rfm_TableForm.h"

namespace
{
std::int64_t CheckOf(unsigned classId, std::int64_t oid, std::int64_t position, const rfm_Element& element)
{
    rfm_Check check(rfm_Elements::checkSeed, oid);
    check.Add(rfm_Cell::Integer(classId));
    check.Add(rfm_Cell::Integer(position));
    check.Add(element.key);
    check.Add(element.value);
    check.Add(element.targetClassId);
    check.Add(element.targetOid);
    return check.Number();
}
} // namespace

rfm_ElementInserter::rfm_ElementInserter(rfm_Database& database, const cow_String& schema)
    : batch(database, rfm_Elements::Form(schema))
{}

void rfm_ElementInserter::Insert(unsigned classId, std::int64_t oid, std::int64_t position,
                                 const rfm_Element& element)
{
    Insert(classId, oid, position, element, rfm_Cell::Integer(CheckOf(classId, oid, position, element)));
}

void rfm_ElementInserter::Insert(unsigned classId, std::int64_t oid, std::int64_t position,
                                 const rfm_Element& element, const rfm_Cell& check)
{
    rfm_Cell row[rfm_Elements::ColumnCount];
    row[rfm_Elements::ClassId] = rfm_Cell::Integer(classId);
    row[rfm_Elements::Oid] = rfm_Cell::Integer(oid);
    row[rfm_Elements::Position] = rfm_Cell::Integer(position);
    row[rfm_Elements::Key] = element.key;
    row[rfm_Elements::Value] = element.value;
    row[rfm_Elements::TargetClassId] = element.targetClassId;
    row[rfm_Elements::TargetOid] = element.targetOid;
    row[rfm_Elements::Check] = check;
    batch.Add(row);
}

rfm_ElementCursor::rfm_ElementCursor(rfm_Database& database, const cow_String& schema)
    : database(database), statement(database, rfm_Elements::SqlToRead(schema), rfm_Elements::name)
{}

void rfm_ElementCursor::Open(unsigned newClassId, std::int64_t newOid)
{
    classId = newClassId;
    oid = newOid;
    position = 0;
    statement.Reset();
    statement.Bind(1, std::int64_t{classId});
    statement.Bind(2, oid);
}

bool rfm_ElementCursor::Next(rfm_Element& element)
{
    if (!statement.Step(oid))
        return false;
    const rfm_Cell found = statement.Column(0);
    if (!found.Is(rfm_CellKind::Integer) || found.integer != position)
        RaiseDamaged("The positions of the collection's elements do not run from 0 without holes.");
    element = {statement.Column(1), statement.Column(2), statement.Column(3), statement.Column(4)};
    const rfm_Cell check = statement.Column(5);
    if (!check.IsNull() &&
        (!check.Is(rfm_CellKind::Integer) || check.integer != CheckOf(classId, oid, position, element)))
        RaiseDamaged("The element does not fit its check number: the file is damaged.");
    ++position;
    return true;
}

void rfm_ElementCursor::RaiseDamaged(const char* message) const
{
    database.Raise(message, rfm_Elements::name, oid, ("Position " + std::to_string(position)).c_str());
}
