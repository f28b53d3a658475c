#pragma once

#include "ovr_Export.h"

#include <cstddef>
#include <cstdint>

// Memory of the whole system. Blocks of at most mem_detail::slabLimit bytes are cut from a slab: one reserved
// range of addresses with a fixed part for each block size, so that a block's size follows from its address
// and a free block costs no header. Everything larger is the C library's. One thread at a time may allocate
// and free.

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

/// Each size class owns 2^slabShift bytes of addresses; a free-list link counts in units of 4 bytes.
inline constexpr unsigned slabShift = 34;
inline constexpr std::uintptr_t slabClassBytes = std::uintptr_t{1} << slabShift;
inline constexpr unsigned linkShift = 2;

struct SlabState
{
    std::uintptr_t base;                    ///< first address of the reserved range, 0 before it is reserved
    std::uintptr_t bytes;                   ///< length of the reserved range, 0 before it is reserved
    std::uint32_t freeLink[slabClassCount]; ///< newest free block of the class, 0 for none
    std::uintptr_t next[slabClassCount];    ///< first address of the class never handed out
    std::uintptr_t usable[slabClassCount];  ///< end of the whole blocks in the committed part of the class
};

extern OVR_EXPORT SlabState slab;

/// Commits more of the class and takes a block from it; falls back to the C heap when the range is exhausted.
OVR_EXPORT void* SlabGrow(unsigned slabClass);

/// A block from the C heap; throws std::bad_alloc.
OVR_EXPORT void* HeapNew(std::size_t size);

/// Gives a block of the C heap back; null does nothing.
OVR_EXPORT void HeapFree(void* block) noexcept;

inline void* SlabNew(unsigned slabClass)
{
    if (const std::uint32_t link = slab.freeLink[slabClass])
    {
        const std::uintptr_t start = slab.base + slabClass * slabClassBytes;
        auto* block = reinterpret_cast<std::uint32_t*>(start + (std::uintptr_t{link} << linkShift));
        slab.freeLink[slabClass] = *block;
        // The next block's link is read when it is taken; by then it should be near.
        __builtin_prefetch(reinterpret_cast<const void*>(start + (std::uintptr_t{*block} << linkShift)), 1);
        return block;
    }
    const std::uintptr_t block = slab.next[slabClass];
    if (block == slab.usable[slabClass]) [[unlikely]]
        return SlabGrow(slabClass);
    slab.next[slabClass] = block + SlabSize(slabClass);
    return reinterpret_cast<void*>(block);
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

/// As malloc, but throws std::bad_alloc instead of returning null.
inline void* mem_Malloc(std::size_t size)
{
    return mem_OperatorNewThrow(size);
}

/// As realloc, for any block of this header, but throws std::bad_alloc (the old block stays valid) instead of
/// returning null. Size 0 frees the block and returns null.
OVR_EXPORT void* mem_Realloc(void* block, std::size_t size);

/// Gives back a block of any function of this header; null does nothing.
inline void mem_Free(void* block) noexcept
{
    using namespace mem_detail;
    const std::uintptr_t distance = reinterpret_cast<std::uintptr_t>(block) - slab.base;
    if (slabActive && distance < slab.bytes)
    {
        std::uint32_t& newest = slab.freeLink[distance >> slabShift];
        *static_cast<std::uint32_t*>(block) = newest;
        newest = static_cast<std::uint32_t>((distance & (slabClassBytes - 1)) >> linkShift);
        return;
    }
    HeapFree(block);
}

/// Blocks handed out by any function of this header and not yet given back. Walks the free lists, so it is
/// for tests and reports.
OVR_EXPORT std::size_t mem_BlocksInUse();
