#pragma once

#include "ovr_Export.h"

#include <bit>
#include <cstddef>
#include <cstdint>

// Memory of the whole system. Blocks of at most mem_detail::slabLimit bytes are cut from a slab: one reserved
// range of addresses with a fixed part for each block size, so that a block's size follows from its address
// and no block has a header. Blocks taken one after the other lie side by side wherever there is room,
// however mixed the order was in which others were given back. Everything larger is the C library's. One
// thread at a time may allocate and free.

namespace mem_detail
{
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool slabActive = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
inline constexpr bool slabActive = false;
#else
inline constexpr bool slabActive = true;
#endif
#else
inline constexpr bool slabActive = true;
#endif

/// Blocks come in sizes of 4 and 8 bytes and in steps of 16 up to slabLimit.
inline constexpr std::size_t slabLimit = 256;
inline constexpr unsigned slabClassCount = 2 + slabLimit / 16;

constexpr unsigned SlabClass(std::size_t size)
{
    if (size <= 8)
        return size > 4;
    return static_cast<unsigned>(1 + (size + 15) / 16);
}

constexpr std::size_t SlabSize(unsigned slabClass)
{
    return slabClass < 2 ? std::size_t{4} << slabClass : std::size_t{16} * (slabClass - 1);
}

/// Each size class owns 2^slabShift bytes of addresses, in units of 4 bytes as many as 32 bits count.
inline constexpr unsigned slabShift = 34;
inline constexpr std::uintptr_t slabClassBytes = std::uintptr_t{1} << slabShift;
inline constexpr unsigned slabUnitShift = 2;

/// 64 blocks of one class side by side. What is known of them lies apart, so that giving a block back or
/// taking it does not touch the block.
struct SlabPage
{
    std::uint64_t free; ///< bit i tells that block i is free
    SlabPage* next;     ///< next in the class's stack of pages with free blocks
};

inline constexpr unsigned slabPageBlocks = 64;
/// Places for the pages of one class: enough for the smallest blocks, and a few more, so that the places of
/// two classes do not have the same low bits in their addresses, of which caches would keep only one.
inline constexpr std::uintptr_t slabClassPages = slabClassBytes / SlabSize(0) / slabPageBlocks + 768;

struct SlabSupply
{
    std::uintptr_t next; ///< first block of the run that blocks are taken from, one after the other
    std::uintptr_t end;  ///< end of that run, whose blocks no page has as free
    SlabPage* current;   ///< page of that run; null before the class has one
    SlabPage* others;    ///< stack of all other pages that have free blocks
    std::size_t pages;   ///< pages made so far
};

struct SlabState
{
    std::uintptr_t base;  ///< first address of the blocks; far from all others before they are reserved
    std::uintptr_t bytes; ///< length of their range, 0 before it is reserved
    SlabPage* pages;      ///< slabClassPages for each class
    SlabSupply supplies[slabClassCount];
};

extern OVR_EXPORT SlabState slab;

/// What to multiply a block's distance in units with to have its index in the upper 32 bits.
struct SlabReciprocals
{
    constexpr SlabReciprocals()
    {
        for (unsigned slabClass = 0; slabClass < slabClassCount; ++slabClass)
        {
            const std::uint64_t units = SlabSize(slabClass) >> slabUnitShift;
            of[slabClass] = ((std::uint64_t{1} << 32) + units - 1) / units;
        }
    }

    std::uint64_t of[slabClassCount] = {};
};
inline constexpr SlabReciprocals slabReciprocals;

/// Goes to the next run of free blocks and takes one from it; falls back to the C heap when there is none and
/// no room for one.
OVR_EXPORT void* SlabNextRun(unsigned slabClass);

/// Notes that a page without free blocks has one again.
OVR_EXPORT void SlabReopen(unsigned slabClass, SlabPage* page) noexcept;

/// Gives back `blocks` blocks side by side, the first at `distance` from the first of their class.
OVR_EXPORT void SlabFreeRun(unsigned slabClass, std::uintptr_t distance, std::size_t blocks) noexcept;

/// A block from the C heap; throws std::bad_alloc.
OVR_EXPORT void* HeapNew(std::size_t size);

/// Gives a block of the C heap back; null does nothing.
OVR_EXPORT void HeapFree(void* block) noexcept;

inline void* SlabNew(unsigned slabClass)
{
    SlabSupply& supply = slab.supplies[slabClass];
    const std::uintptr_t block = supply.next;
    if (block == supply.end) [[unlikely]]
        return SlabNextRun(slabClass);
    supply.next = block + SlabSize(slabClass);
    return reinterpret_cast<void*>(block);
}

/// Gives back the block at `distance` from the first of its class.
inline void SlabFree(unsigned slabClass, std::uintptr_t distance) noexcept
{
    SlabSupply& supply = slab.supplies[slabClass];
    const std::uintptr_t block = slab.base + slabClass * slabClassBytes + distance;
    if (block + SlabSize(slabClass) == supply.next)
    {
        // The block taken last, which the caches still have.
        supply.next = block;
        return;
    }
    const std::uint64_t unit = static_cast<std::uint32_t>(distance >> slabUnitShift);
    const std::uint64_t index = (unit * slabReciprocals.of[slabClass]) >> 32;
    SlabPage* page = slab.pages + slabClass * slabClassPages + index / slabPageBlocks;
    const std::uint64_t free = page->free;
    page->free = free | std::uint64_t{1} << index % slabPageBlocks;
    if (free == 0) [[unlikely]]
        SlabReopen(slabClass, page);
}
} // namespace mem_detail

/// Raw storage of `size` bytes, aligned for any type of that size up to 16; throws std::bad_alloc.
/// Give it back through mem_Free.
inline void* mem_OperatorNewThrow(std::size_t size)
{
    if (mem_detail::slabActive && size <= mem_detail::slabLimit)
        return mem_detail::SlabNew(mem_detail::SlabClass(size));
    return mem_detail::HeapNew(size);
}

/// As mem_OperatorNewThrow, for arrays of built-in types.
inline void* mem_OperatorNewThrowBuiltin(std::size_t size)
{
    return mem_OperatorNewThrow(size);
}

/// As mem_OperatorNewThrow, meant for counts and handles of 4 to 16 bytes, which it lays side by side.
inline void* mem_OperatorNewTinyThrow(std::size_t size)
{
    return mem_OperatorNewThrow(size);
}

/// As malloc: null when there is no memory.
OVR_EXPORT void* mem_Malloc(std::size_t size) noexcept;

/// As realloc, for any block of this header: null when there is no memory, and the old block stays valid.
/// Size 0 frees the block and returns null.
OVR_EXPORT void* mem_Realloc(void* block, std::size_t size) noexcept;

/// Gives back a block of any function of this header; null does nothing.
inline void mem_Free(void* block) noexcept
{
    using namespace mem_detail;
    const std::uintptr_t distance = reinterpret_cast<std::uintptr_t>(block) - slab.base;
    if (slabActive && distance < slab.bytes)
        return SlabFree(static_cast<unsigned>(distance >> slabShift), distance & (slabClassBytes - 1));
    HeapFree(block);
}

/// As mem_Free, for a block that was made for `size` bytes: shorter where the compiler knows the size.
inline void mem_FreeSized(void* block, std::size_t size) noexcept
{
    using namespace mem_detail;
    if (!slabActive || size > slabLimit)
        return HeapFree(block);
    const unsigned slabClass = SlabClass(size);
    const std::uintptr_t distance =
        reinterpret_cast<std::uintptr_t>(block) - slab.base - slabClass * slabClassBytes;
    if (distance < slabClassBytes) [[likely]]
        return SlabFree(slabClass, distance);
    HeapFree(block);
}

/// Gives back many blocks that were made for `size` bytes each, some of them only when it goes: those that
/// lie side by side and come in order, either way, go back together.
template <std::size_t size>
class mem_FreeMany
{
public:
    mem_FreeMany() = default;
    mem_FreeMany(const mem_FreeMany&) = delete;
    mem_FreeMany& operator=(const mem_FreeMany&) = delete;
    ~mem_FreeMany() { FreeRun(); }

    void Add(void* block) noexcept
    {
        using namespace mem_detail;
        if constexpr (!slabActive || size > slabLimit)
            return HeapFree(block);
        constexpr std::size_t step = SlabSize(SlabClass(size));
        const auto address = reinterpret_cast<std::uintptr_t>(block);
        if (address == end)
            end += step;
        else if (address + step == first)
            first = address;
        else
        {
            FreeRun();
            first = address;
            end = address + step;
        }
    }

private:
    void FreeRun() noexcept
    {
        using namespace mem_detail;
        if (first == end)
            return;
        constexpr unsigned slabClass = SlabClass(size);
        const std::uintptr_t distance = first - slab.base - slabClass * slabClassBytes;
        if (distance < slabClassBytes) [[likely]]
            return SlabFreeRun(slabClass, distance, (end - first) / SlabSize(slabClass));
        for (; first != end; first += SlabSize(slabClass))
            HeapFree(reinterpret_cast<void*>(first));
    }

    std::uintptr_t first = 0;
    std::uintptr_t end = 0;
};

/// Blocks handed out by any function of this header and not yet given back. Walks all pages, so it is for
/// tests and reports.
OVR_EXPORT std::size_t mem_BlocksInUse();
