#include "mem_Allocation.h"

#include "mem_AllocationOperators.h"
#include "ovr_Export.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <random>
#include <set>
#include <string>
#include <sys/resource.h>
#include <utility>
#include <vector>

/// Lets the C heap of a sanitized build run out as any other does.
extern "C" OVR_EXPORT const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace
{
constexpr std::size_t edgeSizes[] = {0,  1,  3,  4,  5,   7,   8,   9,   15,  16,   17,   31,    32,
                                     33, 63, 64, 65, 128, 240, 255, 256, 257, 1000, 4096, 100000};

std::uintptr_t Address(const void* block)
{
    return reinterpret_cast<std::uintptr_t>(block);
}

struct Function
{
    const char* name;
    void* (*make)(std::size_t);
    bool givesNull = false; ///< when there is no memory, and throws otherwise
};

class mem_AllocationFunctions : public testing::TestWithParam<Function>
{};

TEST_P(mem_AllocationFunctions, GivesAlignedStorageThatCanBeFilledAndFreed)
{
    const std::size_t before = mem_BlocksInUse();
    std::vector<std::pair<unsigned char*, std::size_t>> blocks;
    for (int round = 0; round < 20; ++round)
    {
        for (const std::size_t size : edgeSizes)
        {
            auto* block = static_cast<unsigned char*>(GetParam().make(size));
            ASSERT_NE(block, nullptr) << size;
            const std::size_t alignment = size > 8 ? 16 : size > 4 ? 8 : 4;
            EXPECT_EQ(Address(block) % alignment, 0u) << size;
            std::memset(block, static_cast<int>(blocks.size() % 251), size);
            blocks.emplace_back(block, size);
        }
    }
    EXPECT_EQ(mem_BlocksInUse(), before + blocks.size());
    for (std::size_t i = 0; i < blocks.size(); ++i)
    {
        const auto [block, size] = blocks[i];
        const auto own = [i](unsigned char byte) { return byte == i % 251; };
        EXPECT_TRUE(std::all_of(block, block + size, own)) << size;
        mem_Free(block);
    }
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST_P(mem_AllocationFunctions, ThrowsOrGivesNullWhenThereIsNoMemory)
{
    const std::size_t before = mem_BlocksInUse();
    volatile std::size_t tooMuch = std::numeric_limits<std::size_t>::max() / 4;
    if (GetParam().givesNull)
        EXPECT_EQ(nullptr, GetParam().make(tooMuch));
    else
        EXPECT_THROW(static_cast<void>(GetParam().make(tooMuch)), std::bad_alloc);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

INSTANTIATE_TEST_SUITE_P(All, mem_AllocationFunctions,
                         testing::Values(Function{"OperatorNewThrow", mem_OperatorNewThrow},
                                         Function{"OperatorNewThrowBuiltin", mem_OperatorNewThrowBuiltin},
                                         Function{"OperatorNewTinyThrow", mem_OperatorNewTinyThrow},
                                         Function{"Malloc", mem_Malloc, true}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(mem_Allocation, FreeOfNullDoesNothing)
{
    const std::size_t before = mem_BlocksInUse();
    mem_Free(nullptr);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST(mem_Allocation, ReallocKeepsTheContentAcrossAllSizes)
{
    const std::size_t before = mem_BlocksInUse();
    for (const std::size_t from : edgeSizes)
    {
        for (const std::size_t to : edgeSizes)
        {
            if (to == 0)
                continue;
            auto* block = static_cast<unsigned char*>(mem_Malloc(from));
            for (std::size_t i = 0; i < from; ++i)
                block[i] = static_cast<unsigned char>(i % 253);
            block = static_cast<unsigned char*>(mem_Realloc(block, to));
            for (std::size_t i = 0; i < std::min(from, to); ++i)
                ASSERT_EQ(block[i], i % 253) << from << " to " << to;
            std::memset(block, 1, to);
            EXPECT_EQ(mem_BlocksInUse(), before + 1);
            mem_Free(block);
        }
    }
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST(mem_Allocation, ReallocOfNullMakesAndToZeroFrees)
{
    const std::size_t before = mem_BlocksInUse();
    void* block = mem_Realloc(nullptr, 40);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(mem_BlocksInUse(), before + 1);
    EXPECT_EQ(mem_Realloc(block, 0), nullptr);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST(mem_Allocation, ReallocThatFailsLeavesTheBlock)
{
    volatile std::size_t tooMuch = std::numeric_limits<std::size_t>::max() / 4;
    for (const std::size_t size : {16, 4096})
    {
        auto* block = static_cast<char*>(mem_Malloc(size));
        std::strcpy(block, "kept");
        EXPECT_EQ(nullptr, mem_Realloc(block, tooMuch));
        EXPECT_STREQ(block, "kept");
        mem_Free(block);
    }
}

TEST(mem_Allocation, CountsLieSideBySide)
{
    if constexpr (mem_detail::slabActive)
    {
        // Enough to use up the free list that other tests left.
        std::vector<void*> blocks;
        for (int i = 0; i < 100'000; ++i)
            blocks.push_back(mem_OperatorNewTinyThrow(4));
        const auto [least, greatest] = std::minmax_element(blocks.begin(), blocks.end());
        EXPECT_LT(Address(*greatest) - Address(*least), 2u * 4 * blocks.size());
        for (void* block : blocks)
            mem_Free(block);
    }
}

TEST(mem_Allocation, BlocksAreUsedAgain)
{
    if constexpr (mem_detail::slabActive)
    {
        for (const std::size_t size : {4, 8, 16, 48, 256})
        {
            void* block = mem_OperatorNewThrow(size);
            mem_Free(block);
            void* again = mem_OperatorNewThrow(size);
            EXPECT_EQ(again, block);
            mem_Free(again);
        }
    }
}

TEST(mem_Allocation, BlocksLieSideBySideInWhateverOrderOthersWereGivenBack)
{
    if constexpr (mem_detail::slabActive)
    {
        for (const std::size_t size : {4, 16, 48, 256})
        {
            std::vector<void*> blocks(10'000);
            for (void*& block : blocks)
                block = mem_OperatorNewThrow(size);
            std::shuffle(blocks.begin(), blocks.end(), std::mt19937(7));
            for (void* block : blocks)
                mem_FreeSized(block, size);
            for (void*& block : blocks)
                block = mem_OperatorNewThrow(size);
            std::size_t adjacent = 0;
            for (std::size_t i = 1; i < blocks.size(); ++i)
                adjacent += Address(blocks[i]) == Address(blocks[i - 1]) + size;
            EXPECT_GT(adjacent, blocks.size() * 9 / 10) << size;
            for (void* block : blocks)
                mem_Free(block);
        }
    }
}

TEST(mem_Allocation, BlocksOfKnownSizeAreGivenBackToTheSameMemory)
{
    const std::size_t before = mem_BlocksInUse();
    for (const std::size_t size : edgeSizes)
    {
        std::vector<void*> blocks;
        for (int i = 0; i < 200; ++i)
            blocks.push_back(mem_OperatorNewThrow(size));
        for (std::size_t i = 0; i < blocks.size(); ++i)
        {
            if (i % 3 == 0)
                mem_Free(blocks[i]);
            else
                mem_FreeSized(blocks[i], size);
        }
        EXPECT_EQ(mem_BlocksInUse(), before) << size;
    }
    mem_FreeSized(nullptr, 16);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

/// What `FreeMany` is given of 300 blocks that were taken one after the other, in this order.
struct Choice
{
    const char* name;
    int first;
    int end;
    int step;
};

constexpr Choice choices[] = {
    {"none", 0, 0, 1},
    {"all", 0, 300, 1},
    {"the last taken", 299, 300, 1},
    {"some in the middle", 30, 200, 1},
    {"every other", 0, 300, 2},
    {"backwards", 299, -1, -1},
};

template <std::size_t size>
void ExpectFreeManyFrees(const Choice& choice)
{
    SCOPED_TRACE(testing::Message() << choice.name << ", " << size << " bytes");
    const std::size_t before = mem_BlocksInUse();
    std::vector<void*> blocks;
    for (int i = 0; i < 300; ++i)
        blocks.push_back(mem_OperatorNewThrow(size));
    {
        mem_FreeMany<size> many;
        for (int i = choice.first; i != choice.end; i += choice.step)
            many.Add(std::exchange(blocks[static_cast<std::size_t>(i)], nullptr));
    }
    std::erase(blocks, nullptr);
    EXPECT_EQ(mem_BlocksInUse(), before + blocks.size());
    // What was given back can be taken again, and nothing else.
    std::set<void*> taken(blocks.begin(), blocks.end());
    while (taken.size() < 400)
    {
        void* block = mem_OperatorNewThrow(size);
        ASSERT_TRUE(taken.insert(block).second);
        std::memset(block, 0xAB, size);
    }
    for (void* block : taken)
        mem_Free(block);
    EXPECT_EQ(mem_BlocksInUse(), before);
}

TEST(mem_Allocation, FreesManyBlocksTogether)
{
    for (const Choice& choice : choices)
    {
        ExpectFreeManyFrees<4>(choice);
        ExpectFreeManyFrees<16>(choice);
        ExpectFreeManyFrees<128>(choice);
        ExpectFreeManyFrees<256>(choice);
        ExpectFreeManyFrees<1000>(choice);
    }
}

RC_GTEST_PROP(mem_Allocation, BlocksNeverOverlap, (const std::vector<std::pair<std::uint16_t, bool>>& steps))
{
    const std::size_t before = mem_BlocksInUse();
    std::vector<std::pair<unsigned char*, std::size_t>> blocks;
    unsigned char mark = 0;
    std::vector<unsigned char> marks;
    const auto isWhole = [&](std::size_t i)
    {
        const auto [block, size] = blocks[i];
        return std::all_of(block, block + size, [&](unsigned char byte) { return byte == marks[i]; });
    };
    for (const auto& [number, gives] : steps)
    {
        if (gives && !blocks.empty())
        {
            const std::size_t i = number % blocks.size();
            RC_ASSERT(isWhole(i));
            mem_Free(blocks[i].first);
            blocks.erase(blocks.begin() + static_cast<std::ptrdiff_t>(i));
            marks.erase(marks.begin() + static_cast<std::ptrdiff_t>(i));
            continue;
        }
        const std::size_t size = number % 400;
        auto* block = static_cast<unsigned char*>(mem_OperatorNewThrow(size));
        std::memset(block, ++mark, size);
        blocks.emplace_back(block, size);
        marks.push_back(mark);
    }
    RC_ASSERT(mem_BlocksInUse() == before + blocks.size());
    for (std::size_t i = 0; i < blocks.size(); ++i)
    {
        RC_ASSERT(isWhole(i));
        mem_Free(blocks[i].first);
    }
    RC_ASSERT(mem_BlocksInUse() == before);
}

/// Takes small blocks in a process too limited for the slab's reserve until there are no more, gives them
/// back, takes again.
[[noreturn, maybe_unused]] void ExhaustMemory()
{
    const rlimit limit{std::size_t{1} << 28, std::size_t{1} << 28};
    setrlimit(RLIMIT_AS, &limit);
    std::vector<void*> blocks;
    blocks.reserve(1 << 24);
    bool threw = false;
    try
    {
        while (blocks.size() < blocks.capacity())
            blocks.push_back(mem_OperatorNewThrow(64));
    }
    catch (const std::bad_alloc&)
    {
        threw = true;
    }
    const std::size_t taken = blocks.size();
    {
        mem_FreeMany<64> many;
        for (void* block : blocks)
            many.Add(block);
    }
    void* again = taken > 0 ? mem_OperatorNewThrow(64) : nullptr;
    std::_Exit(threw && again != nullptr ? 0 : 1);
}

TEST(mem_AllocationDeathTest, RunsOutWithBadAllocAndRecovers)
{
    if constexpr (mem_detail::slabActive)
    {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        EXPECT_EXIT(ExhaustMemory(), testing::ExitedWithCode(0), "");
    }
}

struct Owner : mem_AllocationOperators
{
    char bytes[24] = {};
};

TEST(mem_AllocationOperators, IsEmptyAndTakesFromTheSameMemory)
{
    static_assert(std::is_empty_v<mem_AllocationOperators>);
    static_assert(sizeof(Owner) == 24);
    const std::size_t before = mem_BlocksInUse();
    auto* one = new Owner;
    auto* many = new Owner[3];
    EXPECT_EQ(mem_BlocksInUse(), before + 2);
    delete one;
    delete[] many;
    EXPECT_EQ(mem_BlocksInUse(), before);
    alignas(Owner) char place[sizeof(Owner)];
    auto* placed = new (place) Owner;
    EXPECT_EQ(static_cast<void*>(placed), place);
    placed->~Owner();
}
} // namespace
