#include "rfm_Check.h"

#include <bit>

namespace
{
/// The word of eight bytes in a row, lowest byte first whatever the machine.
std::uint64_t Word(const char* bytes, std::size_t size)
{
    std::uint64_t word = 0;
    if constexpr (std::endian::native == std::endian::little)
    {
        std::memcpy(&word, bytes, size);
    }
    else
    {
        for (std::size_t i = 0; i < size; ++i)
            word |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
    }
    return word;
}
} // namespace

void rfm_Check::AddBytes(const char* bytes, std::size_t size)
{
    for (; size >= 8; bytes += 8, size -= 8)
        Add(Word(bytes, 8));
    if (size > 0)
        Add(Word(bytes, size));
}

void rfm_Check::Add(const rfm_Cell& cell)
{
    const auto code = [](rfm_CellKind kind) { return static_cast<std::uint64_t>(kind) << 56; };
    switch (cell.kind)
    {
    case rfm_CellKind::Integer:
        state += code(cell.kind);
        Add(static_cast<std::uint64_t>(cell.integer));
        return;
    case rfm_CellKind::Real:
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &cell.real, sizeof bits);
        if (rfm_NeedsBits(cell.real))
            Add(code(rfm_CellKind::Blob) | sizeof bits);
        else
            state += code(cell.kind);
        Add(bits);
        return;
    }
    case rfm_CellKind::Text:
    case rfm_CellKind::Blob:
        Add(code(cell.kind) | cell.size);
        AddBytes(cell.bytes, cell.size);
        return;
    case rfm_CellKind::Null:
    case rfm_CellKind::Unset:
        Add(code(rfm_CellKind::Null));
        return;
    }
}
