#include "dbc_Reach.h"

#include "rfm_ElementStore.h"
#include "rom_ClassPlan.h"

#include <climits>

dbc_Reach::dbc_Reach(rfm_Database& store) : store(store) {}

dbc_Reach::~dbc_Reach() = default;

void dbc_Reach::AddTable(unsigned classId, const rfm_TableForm& form,
                         const std::vector<rfm_ReferenceColumn>& references)
{
    tables[classId] = {form, references, std::make_unique<rfm_Cursor>(store, form), {}};
}

void dbc_Reach::Meet(std::int64_t classId, const rfm_Cell& oid)
{
    if (classId <= 0 || classId > UINT_MAX || !oid.Is(rfm_CellKind::Integer))
        return;
    const auto id = static_cast<unsigned>(classId);
    const auto found = tables.find(id);
    if (found != tables.end() && found->second.reached.insert(oid.integer).second)
        waiting.emplace_back(id, oid.integer);
}

void dbc_Reach::Walk(unsigned classId, std::int64_t oid)
{
    Meet(classId, rfm_Cell::Integer(oid));
    while (!waiting.empty())
    {
        const auto [nextClass, nextOid] = waiting.back();
        waiting.pop_back();
        Follow(nextClass, tables.at(nextClass), nextOid);
    }
}

void dbc_Reach::Follow(unsigned classId, Table& table, std::int64_t oid)
{
    if (!table.cursor->Seek(oid))
        return;
    const rfm_Cell* cells = table.cursor->Cells();
    for (const rfm_ReferenceColumn& reference : table.references)
    {
        const rfm_Cell target = reference.ClassCell() < 0 ? rfm_Cell::Integer(reference.FixedClassId())
                                                          : cells[reference.ClassCell()];
        if (target.Is(rfm_CellKind::Integer))
            Meet(target.integer, cells[reference.OidCell()]);
    }
    if (!rom_ClassPlan::IsCollection(classId))
        return;
    rfm_ElementCursor elements(store);
    elements.Open(classId, oid);
    rfm_Element element;
    while (elements.Next(element))
    {
        if (element.targetClassId.Is(rfm_CellKind::Integer))
            Meet(element.targetClassId.integer, element.targetOid);
    }
}

void dbc_Reach::RemoveOthers()
{
    for (auto& [classId, table] : tables)
    {
        table.cursor.reset();
        RemoveRows(table);
    }
    RemoveElements();
}

void dbc_Reach::RemoveRows(const Table& table)
{
    const std::string name = table.form.SqlName();
    const std::string key = rfm_Quoted(table.form.keyColumn);
    rfm_Statement next(store, "SELECT MIN(" + key + ") FROM " + name + " WHERE " + key + " > ?",
                       table.form.name);
    rfm_Statement remove(store, "DELETE FROM " + name + " WHERE " + key + " = ?", table.form.name);
    const auto from = [&next](std::int64_t oid)
    {
        next.Reset();
        next.Bind(1, oid);
        const rfm_Cell found = next.Step() ? next.Column(0) : rfm_Cell::Null();
        next.Reset();
        return found;
    };
    for (rfm_Cell oid = from(INT64_MIN); oid.Is(rfm_CellKind::Integer); oid = from(oid.integer))
    {
        if (table.reached.count(oid.integer) != 0)
            continue;
        remove.Bind(1, oid.integer);
        remove.Run();
    }
}

void dbc_Reach::RemoveElements()
{
    const std::string name = rfm_Elements::Form().SqlName();
    std::vector<std::pair<std::int64_t, std::int64_t>> others;
    {
        rfm_Statement collections(store, "SELECT DISTINCT \"ClassID\", \"OID\" FROM " + name,
                                  rfm_Elements::name);
        while (collections.Step())
        {
            const std::int64_t classId = collections.Column(0).integer;
            const std::int64_t oid = collections.Column(1).integer;
            const auto table = tables.find(static_cast<unsigned>(classId));
            if (table == tables.end() || table->second.reached.count(oid) == 0)
                others.emplace_back(classId, oid);
        }
    }
    rfm_Statement remove(store, "DELETE FROM " + name + " WHERE \"ClassID\" = ? AND \"OID\" = ?",
                         rfm_Elements::name);
    for (const auto& [classId, oid] : others)
    {
        remove.Bind(1, classId);
        remove.Bind(2, oid);
        remove.Run();
    }
}
