#include "mem_Allocation.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <utility>

namespace mem_detail
{
constinit SlabState slab = {.base = std::uintptr_t{1} << 63, .bytes = 0, .pages = nullptr, .supplies = {}};
}

namespace
{
using namespace mem_detail;

constexpr std::uintptr_t commitBytes = std::uintptr_t{1} << 20;
static_assert(slabClassBytes >> slabUnitShift == std::uintptr_t{1} << 32);

std::size_t heapBlocks = 0;

bool IsSlabBlock(const void* block)
{
    return slabActive && reinterpret_cast<std::uintptr_t>(block) - slab.base < slab.bytes;
}

bool Reserve()
{
    if (slab.bytes != 0)
        return true;
    constexpr std::uintptr_t blockBytes = slabClassCount * slabClassBytes;
    constexpr std::uintptr_t pageBytes = slabClassCount * slabClassPages * sizeof(SlabPage);
    void* range =
        mmap(nullptr, blockBytes + pageBytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (range == MAP_FAILED)
        return false;
    slab.base = reinterpret_cast<std::uintptr_t>(range);
    slab.bytes = blockBytes;
    slab.pages = reinterpret_cast<SlabPage*>(slab.base + blockBytes);
    return true;
}

/// Makes the part that grows from `start` usable up to `end` bytes, of which `used` are; false when the
/// system refuses.
bool Commit(std::uintptr_t start, std::uintptr_t used, std::uintptr_t end)
{
    const auto committed = [](std::uintptr_t bytes)
    { return (bytes + commitBytes - 1) / commitBytes * commitBytes; };
    const std::uintptr_t first = committed(used);
    const std::uintptr_t bytes = committed(end) - first;
    return bytes == 0 || mprotect(reinterpret_cast<void*>(start + first), bytes, PROT_READ | PROT_WRITE) == 0;
}

/// The first page of each class has another index, for the same reason as slabClassPages has more than
/// needed.
constexpr std::size_t LeastPage(unsigned slabClass)
{
    constexpr std::size_t cacheLine = 64;
    return slabClass * (cacheLine / sizeof(SlabPage));
}

SlabPage* FirstPage(unsigned slabClass)
{
    return slab.pages + slabClass * slabClassPages;
}

std::uintptr_t PageStart(unsigned slabClass, std::size_t page)
{
    return slab.base + slabClass * slabClassBytes + page * slabPageBlocks * SlabSize(slabClass);
}

/// A page of the class that was never used, all its blocks free; null when there is no room for one.
SlabPage* NewPage(unsigned slabClass)
{
    if (!Reserve())
        return nullptr;
    SlabSupply& supply = slab.supplies[slabClass];
    const std::uintptr_t pageBytes = slabPageBlocks * SlabSize(slabClass);
    const std::size_t page = std::max(supply.pages, LeastPage(slabClass));
    const std::uintptr_t used = supply.pages * pageBytes;
    if ((page + 1) * pageBytes > slabClassBytes ||
        !Commit(PageStart(slabClass, 0), used, (page + 1) * pageBytes))
        return nullptr;
    SlabPage* first = FirstPage(slabClass);
    if (!Commit(reinterpret_cast<std::uintptr_t>(first), supply.pages * sizeof(SlabPage),
                (page + 1) * sizeof(SlabPage)))
        return nullptr;
    supply.pages = page + 1;
    return ::new (static_cast<void*>(first + page)) SlabPage{~std::uint64_t{0}, nullptr};
}

/// The class's next page with free blocks, or null; it is the current one from then on.
SlabPage* TurnPage(unsigned slabClass)
{
    SlabSupply& supply = slab.supplies[slabClass];
    if (supply.current != nullptr && supply.current->free != 0)
        return supply.current;
    SlabPage* page = supply.others;
    if (page != nullptr)
        supply.others = page->next;
    else
        page = NewPage(slabClass);
    if (page != nullptr)
        supply.current = page;
    return page;
}

std::size_t BlocksInUse(unsigned slabClass)
{
    const SlabSupply& supply = slab.supplies[slabClass];
    const SlabPage* first = FirstPage(slabClass);
    std::size_t blocks = 0;
    for (std::size_t page = LeastPage(slabClass); page < supply.pages; ++page)
        blocks += static_cast<std::size_t>(std::popcount(~first[page].free));
    return blocks - (supply.end - supply.next) / SlabSize(slabClass);
}
} // namespace

void* mem_detail::SlabNextRun(unsigned slabClass)
{
    SlabPage* page = TurnPage(slabClass);
    if (page == nullptr)
        return HeapNew(SlabSize(slabClass));
    const int first = std::countr_zero(page->free);
    const int blocks = std::countr_one(page->free >> first);
    page->free &= ~(~std::uint64_t{0} >> (slabPageBlocks - blocks) << first);

    SlabSupply& supply = slab.supplies[slabClass];
    const auto size = static_cast<std::uintptr_t>(SlabSize(slabClass));
    supply.next = PageStart(slabClass, static_cast<std::size_t>(page - FirstPage(slabClass))) + first * size;
    supply.end = supply.next + blocks * size;
    return SlabNew(slabClass);
}

void mem_detail::SlabReopen(unsigned slabClass, SlabPage* page) noexcept
{
    SlabSupply& supply = slab.supplies[slabClass];
    if (page == supply.current)
        return;
    page->next = supply.others;
    supply.others = page;
}

void mem_detail::SlabFreeRun(unsigned slabClass, std::uintptr_t distance, std::size_t blocks) noexcept
{
    SlabSupply& supply = slab.supplies[slabClass];
    const std::uintptr_t first = slab.base + slabClass * slabClassBytes + distance;
    if (first + blocks * SlabSize(slabClass) == supply.next)
    {
        supply.next = first;
        return;
    }
    std::size_t index = distance / SlabSize(slabClass);
    while (blocks != 0)
    {
        SlabPage* page = FirstPage(slabClass) + index / slabPageBlocks;
        const std::size_t place = index % slabPageBlocks;
        const std::size_t run = std::min<std::size_t>(blocks, slabPageBlocks - place);
        const std::uint64_t free =
            std::exchange(page->free, page->free | ~std::uint64_t{0} >> (slabPageBlocks - run) << place);
        if (free == 0)
            SlabReopen(slabClass, page);
        index += run;
        blocks -= run;
    }
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

void* mem_Malloc(std::size_t size) noexcept
{
    try
    {
        return mem_OperatorNewThrow(size);
    }
    catch (const std::bad_alloc&)
    {
        return nullptr;
    }
}

void* mem_Realloc(void* block, std::size_t size) noexcept
{
    if (block == nullptr)
        return mem_Malloc(size);
    if (size == 0)
    {
        mem_Free(block);
        return nullptr;
    }
    if (!IsSlabBlock(block))
        return std::realloc(block, size);

    const auto slabClass =
        static_cast<unsigned>((reinterpret_cast<std::uintptr_t>(block) - slab.base) >> slabShift);
    if (size <= slabLimit && SlabClass(size) == slabClass)
        return block;
    void* moved = mem_Malloc(size);
    if (moved == nullptr)
        return nullptr;
    std::memcpy(moved, block, std::min(size, SlabSize(slabClass)));
    mem_Free(block);
    return moved;
}

std::size_t mem_BlocksInUse()
{
    std::size_t blocks = heapBlocks;
    for (unsigned slabClass = 0; slabClass < slabClassCount; ++slabClass)
        blocks += BlocksInUse(slabClass);
    return blocks;
}
