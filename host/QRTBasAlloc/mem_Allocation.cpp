#include "mem_Allocation.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <sys/mman.h>

namespace mem_detail
{
SlabState slab = {};
}

namespace
{
using namespace mem_detail;

constexpr std::uintptr_t commitBytes = std::uintptr_t{1} << 20;

std::size_t heapBlocks = 0;

constexpr std::uintptr_t ClassStart(unsigned slabClass)
{
    return slabClass * slabClassBytes;
}

/// Distance of a class's first block from the start of its part: link 0 means none, so place 0 is never used.
constexpr std::uintptr_t FirstBlock(unsigned slabClass)
{
    return std::max<std::uintptr_t>(SlabSize(slabClass), 16);
}

bool IsSlabBlock(const void* block)
{
    return slabActive && reinterpret_cast<std::uintptr_t>(block) - slab.base < slab.bytes;
}

bool Reserve()
{
    if (slab.bytes != 0)
        return true;
    constexpr std::uintptr_t bytes = slabClassCount * slabClassBytes;
    void* range = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (range == MAP_FAILED)
        return false;
    slab.base = reinterpret_cast<std::uintptr_t>(range);
    slab.bytes = bytes;
    return true;
}

/// Makes the next part of the class's addresses usable; false when there is none or the system refuses.
bool Commit(unsigned slabClass)
{
    if (!Reserve())
        return false;
    const std::uintptr_t start = slab.base + ClassStart(slabClass);
    const std::uintptr_t size = SlabSize(slabClass);
    const bool first = slab.next[slabClass] == 0;
    const std::uintptr_t used = first ? 0 : slab.usable[slabClass] - start;
    const std::uintptr_t committed = (used + commitBytes - 1) / commitBytes * commitBytes;
    if (committed == slabClassBytes)
        return false;
    if (mprotect(reinterpret_cast<void*>(start + committed), commitBytes, PROT_READ | PROT_WRITE) != 0)
        return false;
    if (first)
        slab.next[slabClass] = start + FirstBlock(slabClass);
    slab.usable[slabClass] = start + (committed + commitBytes) / size * size;
    return true;
}

void* HeapResize(void* block, std::size_t size)
{
    void* resized = std::realloc(block, size);
    if (resized == nullptr)
        throw std::bad_alloc();
    return resized;
}

std::size_t FreeBlocks(unsigned slabClass)
{
    std::size_t blocks = 0;
    const std::uintptr_t start = slab.base + ClassStart(slabClass);
    for (std::uint32_t link = slab.freeLink[slabClass]; link != 0;
         link = *reinterpret_cast<const std::uint32_t*>(start + (std::uintptr_t{link} << linkShift)))
        ++blocks;
    return blocks;
}
} // namespace

void* mem_detail::SlabGrow(unsigned slabClass)
{
    return Commit(slabClass) ? SlabNew(slabClass) : HeapNew(SlabSize(slabClass));
}

void* mem_detail::HeapNew(std::size_t size)
{
    void* block = std::malloc(std::max<std::size_t>(size, 1));
    if (block == nullptr)
        throw std::bad_alloc();
    ++heapBlocks;
    return block;
}

void mem_detail::HeapFree(void* block) noexcept
{
    if (block == nullptr)
        return;
    --heapBlocks;
    std::free(block);
}

void* mem_Realloc(void* block, std::size_t size)
{
    if (block == nullptr)
        return mem_Malloc(size);
    if (size == 0)
    {
        mem_Free(block);
        return nullptr;
    }
    if (!IsSlabBlock(block))
        return HeapResize(block, size);

    const auto slabClass =
        static_cast<unsigned>((reinterpret_cast<std::uintptr_t>(block) - slab.base) >> slabShift);
    if (size <= slabLimit && SlabClass(size) == slabClass)
        return block;
    void* moved = mem_Malloc(size);
    std::memcpy(moved, block, std::min(size, SlabSize(slabClass)));
    mem_Free(block);
    return moved;
}

std::size_t mem_BlocksInUse()
{
    std::size_t blocks = heapBlocks;
    for (unsigned slabClass = 0; slabClass < slabClassCount; ++slabClass)
    {
        if (slab.next[slabClass] == 0)
            continue;
        const std::uintptr_t first = slab.base + ClassStart(slabClass) + FirstBlock(slabClass);
        blocks += (slab.next[slabClass] - first) / SlabSize(slabClass) - FreeBlocks(slabClass);
    }
    return blocks;
}
