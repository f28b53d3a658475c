#include "rom_MemoryRows.h"

#include "rom_StoreException.h"

#include <memory>

rom_MemoryRows::rom_MemoryRows() = default;

rom_MemoryRows::~rom_MemoryRows() = default;

const rom_MemoryRows::Root* rom_MemoryRows::FindRoot(const cow_String& name) const
{
    const auto found = roots.find(name.CString());
    return found == roots.end() ? nullptr : &found->second;
}

cow_String rom_MemoryRows::Name() const
{
    return "memory";
}

std::int64_t rom_MemoryRows::Size() const
{
    return size;
}

int rom_MemoryRows::AddTable(const rfm_TableInfo& table)
{
    tables.push_back({table.classId, table.columns.size(), {}});
    return static_cast<int>(tables.size()) - 1;
}

/// The cell with a copy of its text or blob.
rfm_Cell rom_MemoryRows::Kept(const rfm_Cell& cell)
{
    size += static_cast<std::int64_t>(sizeof cell) + 1;
    if (!cell.Is(rfm_CellKind::Text) && !cell.Is(rfm_CellKind::Blob))
        return cell;
    size += cell.size;
    rfm_Cell kept = cell;
    kept.bytes = texts.emplace_back(cell.View()).data();
    return kept;
}

void rom_MemoryRows::InsertRow(int table, std::int64_t oid, const rfm_Cell* cells)
{
    Table& target = tables[static_cast<std::size_t>(table)];
    std::vector<rfm_Cell>& row = target.rows[oid];
    row.reserve(target.cellCount);
    for (std::size_t i = 0; i < target.cellCount; ++i)
        row.push_back(Kept(cells[i]));
}

void rom_MemoryRows::InsertElement(unsigned classId, std::int64_t oid, std::int64_t,
                                   const rfm_Element& element)
{
    elements[{classId, oid}].push_back(
        {Kept(element.key), Kept(element.value), Kept(element.targetClassId), Kept(element.targetOid)});
}

std::int64_t rom_MemoryRows::InsertArray(rfm_Type type, const void* values, std::int64_t length)
{
    const auto bytes = static_cast<std::size_t>(length * rfm_SizeOf(type));
    arrays.push_back({type, length, std::string(static_cast<const char*>(values), bytes)});
    size += static_cast<std::int64_t>(bytes);
    return static_cast<std::int64_t>(arrays.size());
}

void rom_MemoryRows::InsertRoot(const cow_String& name, unsigned classId, std::int64_t oid)
{
    roots[name.CString()] = {classId, oid};
}

int rom_MemoryRows::FindTable(const rfm_TableInfo& table)
{
    for (std::size_t i = 0; i < tables.size(); ++i)
    {
        if (tables[i].classId == table.classId)
            return static_cast<int>(i);
    }
    rom_StoreException(Name(), table.name, rom_StoreException::NoRow, cow_String(), "The table is missing.")
        .Throw(__FILE__, __LINE__);
}

bool rom_MemoryRows::OpenRow(int table, std::int64_t oid, rom_OpenRow& row)
{
    const auto& rows = tables[static_cast<std::size_t>(table)].rows;
    const auto found = rows.find(oid);
    if (found == rows.end())
        return false;
    row = {found->second.data(), nullptr};
    return true;
}

void rom_MemoryRows::CloseRow(int, const rom_OpenRow&) noexcept {}

void* rom_MemoryRows::OpenElements(unsigned classId, std::int64_t oid)
{
    static const std::vector<rfm_Element> none;
    const auto found = elements.find({classId, oid});
    return new Place{found == elements.end() ? &none : &found->second, 0};
}

bool rom_MemoryRows::NextElement(void* opaque, rfm_Element& element)
{
    auto* place = static_cast<Place*>(opaque);
    if (place->next == place->elements->size())
        return false;
    element = (*place->elements)[place->next++];
    return true;
}

void rom_MemoryRows::CloseElements(void* place) noexcept
{
    delete static_cast<Place*>(place);
}

std::int64_t rom_MemoryRows::OpenArray(std::int64_t handle, rfm_Type type)
{
    openArray = nullptr;
    if (handle > 0 && handle <= static_cast<std::int64_t>(arrays.size()))
        openArray = &arrays[static_cast<std::size_t>(handle - 1)];
    if (!openArray || openArray->type != type)
        rom_StoreException(Name(), "There is no array of this kind under the handle.")
            .Throw(__FILE__, __LINE__);
    return openArray->length;
}

void rom_MemoryRows::ReadArray(void* values)
{
    if (openArray && openArray->length > 0)
        std::memcpy(values, openArray->bytes.data(), openArray->bytes.size());
}
