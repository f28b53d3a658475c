#include "rfm_ArrayStore.h"

#include "rfm_Database.h"

#include <algorithm>
#include <bit>
#include <climits>

namespace
{
/// Turns the bytes of each number about, on machines that hold them the other way than the store does.
void Swap(char* bytes, std::size_t size, std::size_t numberSize)
{
    for (std::size_t i = 0; i < size; i += numberSize)
        std::reverse(bytes + i, bytes + i + numberSize);
}

constexpr bool needsSwap = std::endian::native == std::endian::big;
} // namespace

rfm_ArrayStore::rfm_ArrayStore(rfm_Database& database) : database(database) {}

std::int64_t rfm_ArrayStore::Insert(rfm_Type type, const void* values, std::int64_t length)
{
    if (!inserter)
    {
        inserter = std::make_unique<rfm_Inserter>(database, rfm_TableForm::Arrays());
        lastHandle = LastHandle();
    }
    const std::int64_t numberSize = rfm_SizeOf(type);
    if (length > INT_MAX / numberSize)
        database.Raise("The array of " + std::to_string(length) + " numbers is too big for a store.",
                       rfm_TableForm::Arrays().name);
    const auto size = static_cast<std::size_t>(length * numberSize);
    if (needsSwap)
    {
        swapped.assign(static_cast<const char*>(values), size);
        Swap(swapped.data(), size, static_cast<std::size_t>(numberSize));
        values = swapped.data();
    }
    const rfm_Cell cells[] = {rfm_Cell::Integer(type), rfm_Cell::Integer(length),
                              rfm_Cell::Blob(values, size)};
    inserter->Insert(++lastHandle, cells);
    return lastHandle;
}

/// Arrays may be there that were not inserted one by one.
std::int64_t rfm_ArrayStore::LastHandle() const
{
    rfm_Statement statement(database, "SELECT MAX(\"Handle\") FROM \"rfm_Array\"",
                            rfm_TableForm::Arrays().name);
    const rfm_Cell last = statement.Step() ? statement.Column(0) : rfm_Cell::Null();
    return last.Is(rfm_CellKind::Integer) ? last.integer : 0;
}

void rfm_ArrayStore::Flush()
{
    if (inserter)
        inserter->Flush();
}

std::int64_t rfm_ArrayStore::Open(std::int64_t handle, rfm_Type type)
{
    if (!cursor)
        cursor = std::make_unique<rfm_Cursor>(database, rfm_TableForm::Arrays());
    if (!cursor->Seek(handle))
        database.Raise("There is no array under this handle.", rfm_TableForm::Arrays().name, handle);
    const rfm_Cell* cells = cursor->Cells();
    if (!cells[0].Is(rfm_CellKind::Integer) || cells[0].integer != type)
        RaiseDamaged("Type", "The array holds numbers of another kind than expected.");
    if (!cells[1].Is(rfm_CellKind::Integer) || cells[1].integer < 0)
        RaiseDamaged("Length", "Expected the count of numbers.");
    // An empty blob is all that an empty array needs.
    if (!cells[2].Is(rfm_CellKind::Blob) ||
        cells[1].integer != static_cast<std::int64_t>(cells[2].size) / rfm_SizeOf(type) ||
        cells[2].size % static_cast<unsigned>(rfm_SizeOf(type)) != 0)
        RaiseDamaged("Bytes", "The bytes do not fit the length of the array.");
    openType = type;
    return cells[1].integer;
}

void rfm_ArrayStore::Read(void* values) const
{
    const rfm_Cell& bytes = cursor->Cells()[2];
    if (bytes.size == 0)
        return;
    if (openType == rfm_TypeBool &&
        std::any_of(bytes.bytes, bytes.bytes + bytes.size, [](char byte) { return byte != 0 && byte != 1; }))
        RaiseDamaged("Bytes", "A boolean is neither 0 nor 1.");
    std::memcpy(values, bytes.bytes, bytes.size);
    if (needsSwap)
        Swap(static_cast<char*>(values), bytes.size, static_cast<std::size_t>(rfm_SizeOf(openType)));
}

void rfm_ArrayStore::RaiseDamaged(const char* field, const char* message) const
{
    database.Raise(message, rfm_TableForm::Arrays().name, cursor->Key(), field);
}
