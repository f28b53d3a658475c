#pragma once

#include "ovr_Export.h"
#include "rfm_Cell.h"

/// The check number of a row: depends on the table (`seed`, the class id or the number of a table of the
/// store's own), the row's key and every cell. One changed bit always changes it.
class OVR_EXPORT rfm_Check
{
public:
    rfm_Check(unsigned seed, std::int64_t key) : state(start ^ seed) { Add(static_cast<std::uint64_t>(key)); }

    void Add(const rfm_Cell& cell);

    std::int64_t Number() const { return static_cast<std::int64_t>(state); }

private:
    static constexpr std::uint64_t start = 0x9E3779B97F4A7C15u;
    static constexpr std::uint64_t factor = 0x9FB21C651E98DF25u;

    void Add(std::uint64_t word)
    {
        state = (state ^ word) * factor;
        state ^= state >> 32;
    }

    void AddBytes(const char* bytes, std::size_t size);

    std::uint64_t state;
};
