#pragma once

#include "rfm_Cell.h"

#include <bit>

/// The check number of a row: depends on the table (`seed`, the class id or the number of a table of the
/// store's own), the row's key and every cell. One changed bit always changes it.
class rfm_Check
{
public:
    rfm_Check(unsigned seed, std::int64_t key) : state(start ^ seed) { Add(static_cast<std::uint64_t>(key)); }

    /// Where the kind is known, only what is done for it is left.
    [[gnu::always_inline]] void Add(const rfm_Cell& cell)
    {
        switch (cell.kind)
        {
        case rfm_CellKind::Integer:
            state += Code(cell.kind);
            Add(static_cast<std::uint64_t>(cell.integer));
            return;
        case rfm_CellKind::Real:
            if (rfm_NeedsBits(cell.real)) [[unlikely]]
                Add(Code(rfm_CellKind::Blob) | sizeof cell.real);
            else
                state += Code(cell.kind);
            Add(std::bit_cast<std::uint64_t>(cell.real));
            return;
        case rfm_CellKind::Text:
        case rfm_CellKind::Blob:
            Add(Code(cell.kind) | cell.size);
            AddBytes(cell.bytes, cell.size);
            return;
        case rfm_CellKind::Null:
        case rfm_CellKind::Unset:
            Add(Code(rfm_CellKind::Null));
            return;
        }
    }

    std::int64_t Number() const { return static_cast<std::int64_t>(state); }

private:
    static constexpr std::uint64_t start = 0x9E3779B97F4A7C15u;
    static constexpr std::uint64_t factor = 0x9FB21C651E98DF25u;

    static std::uint64_t Code(rfm_CellKind kind) { return static_cast<std::uint64_t>(kind) << 56; }

    void Add(std::uint64_t word)
    {
        state = (state ^ word) * factor;
        state ^= state >> 32;
    }

    void AddBytes(const char* bytes, std::size_t size)
    {
        for (; size >= 8; bytes += 8, size -= 8)
            Add(Word<std::uint64_t>(bytes));
        if (size > 0)
            Add(LastWord(bytes, size));
    }

    /// The number in the bytes, lowest byte first whatever the machine.
    template <class Number>
    static std::uint64_t Word(const char* bytes)
    {
        Number word = 0;
        if constexpr (std::endian::native == std::endian::little)
        {
            std::memcpy(&word, bytes, sizeof word);
        }
        else
        {
            for (std::size_t i = 0; i < sizeof word; ++i)
                word |= static_cast<Number>(static_cast<unsigned char>(bytes[i])) << (8 * i);
        }
        return word;
    }

    /// The same of one to seven bytes. Parts that overlap have the same bits there.
    static std::uint64_t LastWord(const char* bytes, std::size_t size)
    {
        if (size >= 4)
            return Word<std::uint32_t>(bytes) | Word<std::uint32_t>(bytes + size - 4) << (8 * (size - 4));
        const std::size_t middle = size / 2;
        return Word<std::uint8_t>(bytes) | Word<std::uint8_t>(bytes + middle) << (8 * middle) |
               Word<std::uint8_t>(bytes + size - 1) << (8 * (size - 1));
    }

    std::uint64_t state;
};
