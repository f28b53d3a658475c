#include "cow_List.h"
#include "cow_ListIter.h"

#include "cow_Tracked.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <climits>
#include <csignal>
#include <cstring>
#include <iterator>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace
{
using testing::ElementsAre;

using Handle = cow_ArrayCOW<Tracked, cow_Direct<Tracked>>;

static_assert(std::forward_iterator<cow_List<int>::const_iterator>);

template <class T>
std::vector<T> Content(const cow_List<T>& list)
{
    std::vector<T> content;
    for (int i = 0; i < list.Count(); ++i)
        content.push_back(list[i]);
    return content;
}

std::vector<int> Numbers(const cow_List<Tracked>& list)
{
    std::vector<int> numbers;
    for (const Tracked& element : list)
        numbers.push_back(element.Value());
    return numbers;
}

cow_List<int> Range(int n)
{
    cow_List<int> list;
    for (int i = 0; i < n; ++i)
        list.Append(i);
    return list;
}

cow_List<Tracked> TrackedRange(int n)
{
    cow_List<Tracked> list;
    for (int i = 0; i < n; ++i)
        list.Append(Tracked(i));
    return list;
}

std::vector<int> Counting(int first, int end)
{
    std::vector<int> numbers;
    for (int i = first; i < end; ++i)
        numbers.push_back(i);
    return numbers;
}

int BlocksMade(const cow_List<Tracked>& list)
{
    int blocks = 0;
    for (int slot = 0; slot < list.TableSize(); ++slot)
        blocks += list.Block(slot) != nullptr;
    return blocks;
}

/// Every test leaves no block and no tracked object behind.
class cow_ListTest : public testing::Test
{
protected:
    void TearDown() override
    {
        Tracked::FailAfter(-1);
        EXPECT_EQ(mem_BlocksInUse(), blocksBefore);
        EXPECT_TRUE(tracked.IsClean());
    }

    std::size_t blocksBefore = mem_BlocksInUse();
    TrackedScope tracked;
};

using cow_ListDeathTest = cow_ListTest;

TEST_F(cow_ListTest, LaysFourIntegersAndTwoPointers)
{
    static_assert(sizeof(cow_List<double>) == 32 && sizeof(cow_ListBlock<double>) == 16);
    const cow_List<int> list = Range(20).Slice(3, 9);
    int integers[4];
    std::memcpy(integers, static_cast<const void*>(&list), sizeof integers);
    EXPECT_THAT(integers, ElementsAre(list.Count(), list.TableSize(), list.BlockShift(), list.Offset()));
    const void* pointers[2];
    std::memcpy(pointers, reinterpret_cast<const char*>(&list) + sizeof integers, sizeof pointers);
    int share = 0;
    std::memcpy(&share, pointers[0], sizeof share);
    EXPECT_EQ(share, 1);
    const void* firstSlot = nullptr;
    std::memcpy(&firstSlot, pointers[1], sizeof firstSlot);
    EXPECT_EQ(firstSlot, list.Block(0));
}

TEST_F(cow_ListTest, NewListIsEmptyWithoutATable)
{
    const cow_List<int> list;
    EXPECT_EQ(list.Count(), 0);
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.TableSize(), 0);
    EXPECT_EQ(list.BlockShift(), 4);
    EXPECT_EQ(list.Offset(), 0);
    EXPECT_EQ(list.TableShare(), 1);
    const void* pointers[4];
    std::memcpy(pointers, static_cast<const void*>(&list), sizeof pointers);
    EXPECT_EQ(pointers[3], nullptr);
}

TEST_F(cow_ListTest, IsMadeOfUpToFourElements)
{
    EXPECT_THAT(Content(cow_List<int>(1)), ElementsAre(1));
    EXPECT_THAT(Content(cow_List<int>(1, 2)), ElementsAre(1, 2));
    EXPECT_THAT(Content(cow_List<int>(1, 2, 3)), ElementsAre(1, 2, 3));
    EXPECT_THAT(Content(cow_List<int>(1, 2, 3, 4)), ElementsAre(1, 2, 3, 4));
}

TEST_F(cow_ListTest, InitializeChoosesBlocksFromTheRoomAskedFor)
{
    struct Case
    {
        int room;
        int blockShift;
        int tableSize;
    };
    // One value for each way that the float of the room can fall: below 256 nothing is chosen, a power of two
    // fills 8 blocks, anything above needs one more for each started eighth of the power.
    for (const Case c : {Case{0, 4, 0}, Case{1, 4, 16}, Case{15, 4, 16}, Case{255, 4, 16}, Case{256, 5, 24},
                         Case{257, 5, 25}, Case{288, 5, 25}, Case{289, 5, 26}, Case{511, 5, 32},
                         Case{512, 6, 24}, Case{1000, 6, 32}, Case{1'000'000, 16, 32}, Case{1 << 20, 17, 24},
                         Case{(1 << 20) + 1, 17, 25}, Case{16'777'217, 21, 24}, Case{INT_MAX, 28, 24}})
    {
        cow_List<double> list;
        list.Initialize(c.room);
        EXPECT_EQ(list.Count(), 0) << c.room;
        EXPECT_EQ(list.BlockShift(), c.blockShift) << c.room;
        EXPECT_EQ(list.TableSize(), c.tableSize) << c.room;
        EXPECT_EQ(list.Offset(), 0) << c.room;
        for (int slot = 0; slot < list.TableSize(); ++slot)
            EXPECT_EQ(list.Block(slot), nullptr) << c.room;
    }
}

TEST_F(cow_ListTest, InitializeDropsTheOldContent)
{
    cow_List<Tracked> list = TrackedRange(40);
    list.Initialize(300);
    EXPECT_EQ(list.Count(), 0);
    EXPECT_EQ(tracked.Live(), 0u);
    for (int i = 0; i < 300; ++i)
        list.Append(Tracked(i));
    EXPECT_EQ(Numbers(list), Counting(0, 300));
    EXPECT_EQ(BlocksMade(list), 10);
}

TEST_F(cow_ListTest, AppendTakesTheTableBackToTheUnitsInUse)
{
    cow_List<int> list;
    list.Initialize(1000);
    ASSERT_EQ(list.TableSize(), 32);
    list.Append(1);
    EXPECT_EQ(list.TableSize(), 16);
    EXPECT_EQ(list.BlockShift(), 6);
}

TEST_F(cow_ListTest, CopySharesTheTableAndAllocatesNothing)
{
    const cow_List<int> list = Range(1000);
    const std::size_t before = mem_BlocksInUse();
    const cow_List<int> copy(list);
    EXPECT_EQ(mem_BlocksInUse(), before);
    EXPECT_EQ(list.TableShare(), 2);
    EXPECT_EQ(copy.Block(0), list.Block(0));
    EXPECT_EQ(list.BlockShare(0), 1);
}

TEST_F(cow_ListTest, SeventeenthElementMakesASecondBlock)
{
    cow_List<int> list = Range(16);
    EXPECT_EQ(list.BlockShare(0), 1);
    EXPECT_EQ(list.BlockShare(1), 0);
    const cow_List<int> copy(list);
    list.Append(16);
    EXPECT_EQ(list.BlockShare(1), 1);
    EXPECT_EQ(copy.BlockShare(1), 0);
    EXPECT_EQ(copy.Count(), 16);
    EXPECT_EQ(list.Block(0), copy.Block(0));
    EXPECT_EQ(list.BlockShare(0), 2);
    *list.Get(3) = -3;
    EXPECT_NE(list.Block(0), copy.Block(0));
    EXPECT_EQ(copy.BlockShare(0), 1);
    EXPECT_EQ(list[3], -3);
    EXPECT_EQ(copy[3], 3);
}

TEST_F(cow_ListTest, WritingOneElementCopiesOneBlock)
{
    cow_List<Tracked> list = TrackedRange(100);
    const cow_List<Tracked> copy(list);
    *list.Get(50) = Tracked(-1);
    EXPECT_EQ(tracked.Live(), 116u);
    for (int slot = 0; slot < 7; ++slot)
        EXPECT_EQ(list.Block(slot) == copy.Block(slot), slot != 3) << slot;
    EXPECT_EQ(copy[50].Value(), 50);
}

TEST_F(cow_ListTest, AppendToACopyOfAPartBlockLeavesTheOther)
{
    cow_List<Tracked> first = TrackedRange(5);
    cow_List<Tracked> second(first);
    second.Append(Tracked(100));
    first.Append(Tracked(200));
    first.Append(Tracked(201));
    EXPECT_THAT(Numbers(first), ElementsAre(0, 1, 2, 3, 4, 200, 201));
    EXPECT_THAT(Numbers(second), ElementsAre(0, 1, 2, 3, 4, 100));
    EXPECT_EQ(tracked.Live(), 13u);
}

TEST_F(cow_ListTest, AppendAfterASharerHasGoneWritesInPlace)
{
    cow_List<Tracked> list = TrackedRange(5);
    {
        const cow_List<Tracked> copy(list);
        EXPECT_EQ(list.TableShare(), 2);
    }
    const cow_ListBlock<Tracked>* block = list.Block(0);
    list.Append(Tracked(5));
    EXPECT_EQ(list.Block(0), block);
    EXPECT_EQ(Numbers(list), Counting(0, 6));
}

TEST_F(cow_ListTest, ResizeNeverRaisesTheCount)
{
    cow_List<int> list = Range(3);
    list.Resize(list.Count() + 5);
    EXPECT_EQ(list.Count(), 3);
    list.Resize(5000);
    EXPECT_EQ(list.Count(), 3);
    EXPECT_EQ(list.TableSize(), 320);
    list.Resize(3);
    EXPECT_EQ(list.TableSize(), 16);
    EXPECT_THAT(Content(list), ElementsAre(0, 1, 2));
}

TEST_F(cow_ListTest, ResizeDropsElementsBlocksAndSlots)
{
    cow_List<Tracked> list = TrackedRange(600);
    ASSERT_EQ(list.TableSize(), 48);
    list.Resize(100);
    EXPECT_EQ(Numbers(list), Counting(0, 100));
    EXPECT_EQ(list.TableSize(), 16);
    EXPECT_EQ(tracked.Live(), 100u);
    EXPECT_EQ(BlocksMade(list), 7);
    list.Resize(96);
    EXPECT_EQ(BlocksMade(list), 6);
    EXPECT_EQ(tracked.Live(), 96u);
}

TEST_F(cow_ListTest, ResizeOfASharedListCopiesOnlyWhatItKeepsOfTheLastBlock)
{
    cow_List<Tracked> list = TrackedRange(64);
    const cow_List<Tracked> copy(list);
    list.Resize(35);
    EXPECT_EQ(Numbers(list), Counting(0, 35));
    EXPECT_EQ(Numbers(copy), Counting(0, 64));
    EXPECT_EQ(tracked.Live(), 67u);
    EXPECT_EQ(copy.BlockShare(1), 2);
    EXPECT_EQ(copy.BlockShare(2), 1);
    EXPECT_EQ(copy.BlockShare(3), 1);
}

TEST_F(cow_ListTest, ResizeToZeroTakesBlockSizeAndOffsetBack)
{
    cow_List<int> list;
    list.Initialize(1000);
    for (int i = 0; i < 1000; ++i)
        list.Prepend(i);
    while (list.Offset() % 64 != 32)
        list.RemoveIndex(0);
    ASSERT_EQ(list.BlockShift(), 6);
    list.Resize(0);
    EXPECT_EQ(list.Offset(), 0);
    EXPECT_EQ(list.BlockShift(), 4);
    EXPECT_EQ(list.TableSize(), 0);
    EXPECT_EQ(list.Count(), 0);
    list.Append(7);
    EXPECT_THAT(Content(list), ElementsAre(7));
}

TEST_F(cow_ListTest, ResizeToZeroOfASharedListLeavesTheOther)
{
    cow_List<Tracked> list = TrackedRange(40);
    const cow_List<Tracked> copy(list);
    list.Resize(0);
    EXPECT_EQ(list.TableSize(), 0);
    EXPECT_EQ(list.TableShare(), 1);
    EXPECT_EQ(copy.TableShare(), 1);
    EXPECT_EQ(Numbers(copy), Counting(0, 40));
    EXPECT_EQ(tracked.Live(), 40u);
}

TEST_F(cow_ListTest, PrependOnAFullTableGrowsItOnceForARun)
{
    cow_List<Tracked> list = TrackedRange(256);
    ASSERT_EQ(list.TableSize(), 16);
    list.Prepend(Tracked(-1));
    EXPECT_EQ(list.TableSize(), 32);
    EXPECT_EQ(list.Offset(), 255);
    const cow_ListBlock<Tracked>* last = list.Block(31);
    for (int i = 2; i <= 256; ++i)
    {
        list.Prepend(Tracked(-i));
        ASSERT_EQ(list.TableSize(), 32);
        ASSERT_EQ(list.Block(31), last);
    }
    EXPECT_EQ(list.Offset(), 0);
    EXPECT_EQ(Numbers(list), Counting(-256, 256));
    list.Prepend(Tracked(-257));
    EXPECT_EQ(list.TableSize(), 48);
    EXPECT_EQ(list.Offset(), 255);
}

TEST_F(cow_ListTest, PrependUsesFreeSlotsBeforeItGrowsTheTable)
{
    cow_List<int> list = Range(20);
    list.Prepend(-1);
    EXPECT_EQ(list.TableSize(), 16);
    EXPECT_EQ(list.Offset(), 14 * 16 - 1);
    for (int slot = 0; slot < 13; ++slot)
        EXPECT_EQ(list.Block(slot), nullptr);
    EXPECT_EQ(Content(list), Counting(-1, 20));
}

TEST_F(cow_ListTest, PrependToAnEmptyListStartsAtTheEndOfItsTable)
{
    cow_List<int> list;
    list.Prepend(1);
    EXPECT_EQ(list.TableSize(), 16);
    EXPECT_EQ(list.Offset(), 255);
    list.Append(2);
    EXPECT_EQ(list.TableSize(), 32);
    EXPECT_THAT(Content(list), ElementsAre(1, 2));
}

TEST_F(cow_ListTest, GrowsAtBothEndsInTurn)
{
    cow_List<Tracked> list;
    for (int i = 0; i < 3000; ++i)
    {
        list.Append(Tracked(i));
        list.Prepend(Tracked(-1 - i));
    }
    EXPECT_EQ(Numbers(list), Counting(-3000, 3000));
}

TEST_F(cow_ListTest, PrependToACopyLeavesTheOther)
{
    cow_List<Tracked> list = TrackedRange(20);
    list.Prepend(Tracked(-1));
    const cow_List<Tracked> copy(list);
    list.Prepend(Tracked(-2));
    list.Prepend(Tracked(-3));
    EXPECT_EQ(Numbers(copy), Counting(-1, 20));
    EXPECT_EQ(Numbers(list), Counting(-3, 20));
}

TEST_F(cow_ListTest, InsertIndexMovesTheShorterSide)
{
    for (const int at : {0, 1, 10, 49, 50, 51, 90, 99, 100})
    {
        cow_List<Tracked> list = TrackedRange(100);
        const int offset = list.Offset();
        list.InsertIndex(at, Tracked(-1));
        std::vector<int> expected = Counting(0, 100);
        expected.insert(expected.begin() + at, -1);
        EXPECT_EQ(Numbers(list), expected) << at;
        EXPECT_EQ(list.Offset() == offset, at >= 50) << at;
    }
}

TEST_F(cow_ListTest, InsertIndexOfAnElementOfTheList)
{
    for (const int at : {0, 1, 30, 60, 98, 100})
    {
        for (const int from : {0, 29, 30, 31, 61, 99})
        {
            cow_List<Tracked> list = TrackedRange(100);
            list.InsertIndex(at, list[from]);
            cow_List<Handle> handles;
            for (int i = 0; i < 100; ++i)
                handles.Append(Handle(cow_Direct<Tracked>::New(i)));
            handles.InsertIndex(at, handles[from]);
            EXPECT_EQ(list[at].Value(), from) << at;
            EXPECT_EQ(handles[at]->Value(), from) << at;
            EXPECT_EQ(handles[at].ShareCount(), 2);
        }
    }
}

TEST_F(cow_ListTest, RemoveIndexMovesTheShorterSide)
{
    for (const int at : {0, 1, 10, 49, 50, 51, 90, 99})
    {
        cow_List<Tracked> list = TrackedRange(100);
        const cow_List<Tracked> copy(list);
        list.RemoveIndex(at);
        std::vector<int> expected = Counting(0, 100);
        expected.erase(expected.begin() + at);
        EXPECT_EQ(Numbers(list), expected) << at;
        EXPECT_EQ(list.Offset(), at < 50 ? 1 : 0) << at;
        EXPECT_EQ(Numbers(copy), Counting(0, 100));
    }
}

TEST_F(cow_ListTest, RemoveIndexReleasesTheBlockThatItEmptiesAtTheBack)
{
    cow_List<Tracked> list = TrackedRange(33);
    const cow_List<Tracked> copy(list);
    list.RemoveIndex(32);
    EXPECT_EQ(list.Block(2), nullptr);
    EXPECT_EQ(copy.BlockShare(2), 1);
    EXPECT_EQ(list.TableSize(), 16);
}

TEST_F(cow_ListTest, RemoveIndexReleasesTheBlockThatItEmptiesAtTheFront)
{
    cow_List<Tracked> list = TrackedRange(48);
    for (int i = 0; i < 15; ++i)
        list.RemoveIndex(0);
    EXPECT_NE(list.Block(0), nullptr);
    list.RemoveIndex(0);
    EXPECT_EQ(list.Block(0), nullptr);
    EXPECT_EQ(list.Offset(), 16);
    EXPECT_EQ(Numbers(list), Counting(16, 48));
}

TEST_F(cow_ListTest, RemoveIndexOfTheOnlyElementReleasesItsBlock)
{
    for (const int before : {0, 5, 15})
    {
        cow_List<Tracked> list = TrackedRange(before + 1);
        for (int i = 0; i <= before; ++i)
            list.RemoveIndex(0);
        EXPECT_EQ(list.Count(), 0) << before;
        EXPECT_EQ(BlocksMade(list), 0) << before;
        list.Append(Tracked(1));
        list.Prepend(Tracked(0));
        EXPECT_THAT(Numbers(list), ElementsAre(0, 1)) << before;
    }
}

TEST_F(cow_ListTest, AppendAfterRemovalTakesTheTableBack)
{
    cow_List<int> list = Range(257);
    ASSERT_EQ(list.TableSize(), 32);
    list.RemoveIndex(256);
    list.RemoveIndex(255);
    EXPECT_EQ(list.TableSize(), 32);
    list.Append(255);
    EXPECT_EQ(list.TableSize(), 16);
    EXPECT_EQ(Content(list), Counting(0, 256));
}

TEST_F(cow_ListTest, PopGivesTheLastElement)
{
    cow_List<Tracked> list = TrackedRange(18);
    for (int i = 17; i >= 0; --i)
        EXPECT_EQ(list.Pop().Value(), i);
    EXPECT_TRUE(list.IsEmpty());
}

TEST_F(cow_ListTest, FillOnlyExtends)
{
    cow_List<Tracked> list = TrackedRange(3);
    list.Fill(3, Tracked(9));
    list.Fill(-1, Tracked(9));
    EXPECT_EQ(list.Count(), 3);
    const cow_List<Tracked> copy(list);
    list.Fill(40, list[1]);
    EXPECT_EQ(list.Count(), 40);
    for (int i = 3; i < 40; ++i)
        EXPECT_EQ(list[i].Value(), 1);
    EXPECT_EQ(copy.Count(), 3);
}

TEST_F(cow_ListTest, SliceClampsItsBounds)
{
    struct Case
    {
        int from;
        int to;
        std::vector<int> expected;
    };
    const cow_List<int> list = Range(5);
    for (const Case& c : {Case{-3, 2, {0, 1}}, Case{4, 1, {}}, Case{0, 5, {0, 1, 2, 3, 4}},
                          Case{3, 99, {3, 4}}, Case{7, 9, {}}, Case{-4, -2, {}}, Case{5, 5, {}},
                          Case{INT_MIN, INT_MAX, {0, 1, 2, 3, 4}}, Case{2, 3, {2}}})
        EXPECT_EQ(Content(list.Slice(c.from, c.to)), c.expected) << c.from << " to " << c.to;
}

TEST_F(cow_ListTest, SliceChoosesItsBlocksBySize)
{
    const cow_List<Tracked> list = TrackedRange(2000);
    const cow_List<Tracked> slice = list.Slice(100, 1100);
    EXPECT_EQ(slice.BlockShift(), 6);
    EXPECT_EQ(slice.Offset(), 0);
    EXPECT_EQ(Numbers(slice), Counting(100, 1100));
}

TEST_F(cow_ListTest, ConcatenateAppendsAllElements)
{
    cow_List<Tracked> list = TrackedRange(10);
    cow_List<Tracked> other;
    other.Initialize(600);
    for (int i = 10; i < 600; ++i)
        other.Append(Tracked(i));
    list.Concatenate(other);
    EXPECT_EQ(Numbers(list), Counting(0, 600));
    EXPECT_EQ(list.BlockShift(), 4);
    list.Concatenate(cow_List<Tracked>());
    EXPECT_EQ(list.Count(), 600);
}

TEST_F(cow_ListTest, ConcatenateWithItselfAndWithACopyOfItself)
{
    std::vector<int> expected = Counting(0, 37);
    for (const int number : Counting(0, 37))
        expected.push_back(number);
    cow_List<Tracked> list = TrackedRange(37);
    list.Concatenate(list);
    EXPECT_EQ(Numbers(list), expected);
    list.Resize(37);
    const cow_List<Tracked> copy(list);
    list.Concatenate(copy);
    EXPECT_EQ(Numbers(list), expected);
    EXPECT_EQ(copy.Count(), 37);
}

TEST_F(cow_ListTest, SetFromArrayReplacesTheContent)
{
    std::vector<Tracked> array;
    for (int i = 0; i < 50; ++i)
        array.emplace_back(100 + i);
    for (const int before : {0, 10, 50, 300})
    {
        cow_List<Tracked> list = TrackedRange(before);
        const cow_List<Tracked> copy(list);
        list.SetFromArray(array.data(), 50);
        EXPECT_EQ(Numbers(list), Counting(100, 150)) << before;
        EXPECT_EQ(Numbers(copy), Counting(0, before)) << before;
        list.SetFromArray(nullptr, 0);
        EXPECT_TRUE(list.IsEmpty());
    }
    EXPECT_EQ(tracked.Live(), 50u);
}

TEST_F(cow_ListTest, GetCArrayGivesNewElementsThatTheCallerDeletes)
{
    int n = -1;
    std::unique_ptr<Tracked[]> array(TrackedRange(20).GetCArray(n));
    ASSERT_EQ(n, 20);
    for (int i = 0; i < n; ++i)
        EXPECT_EQ(array[static_cast<std::size_t>(i)].Value(), i);
    array.reset(cow_List<Tracked>().GetCArray(n));
    EXPECT_EQ(n, 0);

    const cow_List<Handle> handles(Handle(cow_Direct<Tracked>::New(1)));
    std::unique_ptr<Handle[]> shared(handles.GetCArray(n));
    EXPECT_EQ(shared[0].ConstGet(), handles[0].ConstGet());
    EXPECT_EQ(handles[0].ShareCount(), 2);
}

TEST_F(cow_ListTest, GetCArrayThatFailsLeavesNothing)
{
    const cow_List<Tracked> list = TrackedRange(20);
    int n = -1;
    Tracked::FailAfter(7);
    EXPECT_THROW(static_cast<void>(list.GetCArray(n)), Tracked::Failure);
    EXPECT_EQ(n, -1);
    EXPECT_EQ(tracked.Live(), 20u);
}

TEST_F(cow_ListTest, AssignmentReleasesTheOldContent)
{
    cow_List<Tracked> target = TrackedRange(100);
    const cow_List<Tracked> source = TrackedRange(3);
    target = source;
    EXPECT_EQ(tracked.Live(), 3u);
    EXPECT_EQ(source.TableShare(), 2);
    const cow_List<Tracked>& same = target;
    target = same;
    EXPECT_EQ(source.TableShare(), 2);
}

TEST_F(cow_ListTest, AssignmentFromAnElementOfTheReleasedList)
{
    cow_List<cow_List<Tracked>> lists(TrackedRange(3), TrackedRange(30));
    cow_List<Tracked> inner = lists[1];
    lists = cow_List<cow_List<Tracked>>(inner);
    EXPECT_EQ(Numbers(lists[0]), Counting(0, 30));
    EXPECT_EQ(tracked.Live(), 30u);
}

TEST_F(cow_ListTest, EqualityGoesByElements)
{
    EXPECT_TRUE(cow_List<int>().IsEqual(cow_List<int>()));
    EXPECT_FALSE(Range(3).IsEqual(Range(4)));
    cow_List<int> other = Range(40);
    other.RemoveIndex(0);
    other.Prepend(0);
    EXPECT_TRUE(Range(40).IsEqual(other));
    *other.Get(39) = 0;
    EXPECT_FALSE(Range(40).IsEqual(other));
}

TEST_F(cow_ListTest, SharedElementsAreEqualWithoutComparison)
{
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    const cow_List<double> list(1.0, notANumber);
    const cow_List<double> copy(list);
    EXPECT_TRUE(list.IsEqual(copy));
    EXPECT_FALSE(list.IsEqual(cow_List<double>(1.0, notANumber)));
    EXPECT_EQ(list.FindMember(notANumber), -1);
}

TEST_F(cow_ListTest, MembersAreFoundAddedAndRemovedByEquality)
{
    cow_List<std::string> list("a", "b", "a");
    list.Prepend("z");
    list.RemoveIndex(0);
    EXPECT_EQ(list.FindMember("a"), 0);
    EXPECT_EQ(list.FindMember("b"), 1);
    EXPECT_EQ(list.FindMember("c"), -1);
    EXPECT_TRUE(list.IsMember("b"));
    EXPECT_FALSE(list.IsMember("c"));
    list.AppendUnlessMember("a");
    list.AppendUnlessMember("c");
    EXPECT_THAT(Content(list), ElementsAre("a", "b", "a", "c"));
    list.RemoveMember("a");
    list.RemoveMember("nothing");
    EXPECT_THAT(Content(list), ElementsAre("b", "a", "c"));
}

TEST_F(cow_ListTest, DifferenceKeepsOrderAndDuplicates)
{
    cow_List<int> list(5, 1, 5, 2);
    list.Append(3);
    EXPECT_THAT(Content(list.Difference(cow_List<int>(1, 3))), ElementsAre(5, 5, 2));
    EXPECT_EQ(list.Difference(list).Count(), 0);
    EXPECT_EQ(Content(list.Difference(cow_List<int>())), Content(list));
}

TEST_F(cow_ListTest, IteratorKeepsTheOldContent)
{
    auto list = std::make_unique<cow_List<Tracked>>(TrackedRange(40));
    list->RemoveIndex(0);
    cow_ListIter<Tracked> iter(*list);
    EXPECT_EQ(list->TableShare(), 2);
    int expected = 1;
    for (iter.First(); !iter.AtEnd(); iter.Next())
    {
        EXPECT_EQ(iter.Element().Value(), expected);
        EXPECT_EQ(iter.Position(), expected);
        EXPECT_EQ(iter.Index(), expected - 1);
        if (list && expected % 5 == 0)
            list->RemoveIndex(list->Count() - 1);
        if (expected == 20)
            list.reset();
        ++expected;
    }
    EXPECT_EQ(expected, 40);
    iter.First();
    EXPECT_EQ(iter.Element().Value(), 1);
}

TEST_F(cow_ListTest, IteratorOfAnEmptyListIsAtItsEnd)
{
    const cow_List<Tracked> list;
    cow_ListIter<Tracked> iter(list);
    EXPECT_TRUE(iter.AtEnd());
    EXPECT_EQ(list.begin(), list.end());
    cow_List<Tracked> emptied = TrackedRange(1);
    emptied.RemoveIndex(0);
    EXPECT_EQ(emptied.begin(), emptied.end());
    iter = cow_ListIter<Tracked>(emptied);
    EXPECT_TRUE(iter.AtEnd());
}

TEST_F(cow_ListTest, IteratorCanBeTheLastHolder)
{
    auto list = std::make_unique<cow_List<Tracked>>(TrackedRange(40));
    auto iter = std::make_unique<cow_ListIter<Tracked>>(*list);
    list.reset();
    EXPECT_EQ(tracked.Live(), 40u);
    iter.reset();
    EXPECT_EQ(tracked.Live(), 0u);
}

TEST_F(cow_ListTest, RangeIterationSpansBlocksAndOffsets)
{
    cow_List<int> list = Range(50);
    list.Prepend(-1);
    EXPECT_EQ(std::vector<int>(list.begin(), list.end()), Counting(-1, 50));
    auto at = list.begin();
    EXPECT_EQ(*at++, -1);
    EXPECT_EQ(*at, 0);
}

TEST_F(cow_ListTest, FailingAppendAndPrependLeaveTheList)
{
    for (const int n : {0, 5, 16, 256})
    {
        cow_List<Tracked> list = TrackedRange(n);
        const Tracked value(-1);
        Tracked::FailAfter(0);
        EXPECT_THROW(list.Append(value), Tracked::Failure);
        EXPECT_EQ(Numbers(list), Counting(0, n));
        Tracked::FailAfter(0);
        EXPECT_THROW(list.Prepend(value), Tracked::Failure);
        EXPECT_EQ(Numbers(list), Counting(0, n));
        list.Append(Tracked(n));
        list.Prepend(value);
        EXPECT_EQ(Numbers(list), Counting(-1, n + 1));
    }
}

/// Fails each copy in turn until the operation passes clean; the count stays and nothing is lost or destroyed
/// twice.
template <class Operation>
void FailEachCopy(Operation operation)
{
    for (const bool isShared : {false, true})
    {
        bool passed = false;
        for (int copies = 0; !passed; ++copies)
        {
            ASSERT_LT(copies, 10'000);
            const TrackedScope scope;
            {
                cow_List<Tracked> list = TrackedRange(100);
                list.Prepend(Tracked(-1));
                const auto other = isShared ? std::make_unique<cow_List<Tracked>>(list) : nullptr;
                Tracked::FailAfter(copies);
                try
                {
                    operation(list);
                    passed = true;
                }
                catch (const Tracked::Failure&)
                {
                    EXPECT_EQ(list.Count(), 101);
                }
                Tracked::FailAfter(-1);
                if (other)
                {
                    EXPECT_EQ(Numbers(*other), Counting(-1, 100));
                }
                EXPECT_EQ(Numbers(list).size(), static_cast<std::size_t>(list.Count()));
                list.Append(Tracked(7));
                list.Prepend(Tracked(7));
                list.Fill(400, Tracked(7));
                list.Resize(50);
            }
            EXPECT_TRUE(scope.IsClean()) << "copy " << copies;
        }
    }
}

TEST_F(cow_ListTest, FailingCopiesLeaveTheCount)
{
    const Tracked value(1000);
    std::vector<Tracked> array(150);
    const cow_List<Tracked> other = TrackedRange(70);
    FailEachCopy([&](cow_List<Tracked>& list) { list.Append(value); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.Prepend(value); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.InsertIndex(40, value); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.InsertIndex(60, value); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.RemoveIndex(40); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.RemoveIndex(60); });
    FailEachCopy([&](cow_List<Tracked>& list) { static_cast<void>(list.Pop()); });
    FailEachCopy([&](cow_List<Tracked>& list) { *list.Get(40) = value; });
    FailEachCopy([&](cow_List<Tracked>& list) { list.Resize(57); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.Fill(300, value); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.Concatenate(other); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.Concatenate(list); });
    FailEachCopy([&](cow_List<Tracked>& list) { list.SetFromArray(array.data(), 150); });
    FailEachCopy([&](cow_List<Tracked>& list) { list = list.Slice(10, 90); });
}

TEST_F(cow_ListTest, FailingConstructionOfAListLeavesNothing)
{
    const Tracked value(1);
    Tracked::FailAfter(2);
    EXPECT_THROW(cow_List<Tracked>(value, value, value, value), Tracked::Failure);
}

TEST_F(cow_ListTest, RefusesMorePositionsThanAnIntCounts)
{
    cow_List<char> list;
    list.Append('a');
    list.Append('b');
    list.Append('c');
    list.RemoveIndex(0);
    EXPECT_THROW(list.Fill(INT_MAX, 'x'), std::length_error);
    EXPECT_THAT(Content(list), ElementsAre('b', 'c'));
    list.Initialize(INT_MAX);
    list.Prepend('a');
    list.Append('b');
    EXPECT_THAT(Content(list), ElementsAre('a', 'b'));
}

template <class Act>
void ExpectAbort(Act act)
{
    EXPECT_EXIT(act(), testing::KilledBySignal(SIGABRT), "");
}

TEST_F(cow_ListDeathTest, BadIndexAborts)
{
    GTEST_FLAG_SET(death_test_style, "fast");
    cow_List<int> list = Range(3);
    const cow_List<int>& reader = list;
    cow_List<int> empty;
    for (const int index : {-1, 3, 100, INT_MIN, INT_MAX})
    {
        ExpectAbort([&] { list.Get(index); });
        ExpectAbort([&] { list.RemoveIndex(index); });
        ExpectAbort([&] { static_cast<void>(*const_cast<volatile const int*>(&reader[index])); });
        ExpectAbort([&] { list.InsertIndex(index == 3 ? 4 : index, 1); });
        ExpectAbort([&] { list.RaiseOutOfRange(index); });
    }
    ExpectAbort([&] { empty.Pop(); });
    ExpectAbort([&] { empty.Get(0); });
    ExpectAbort([&] { empty.RemoveIndex(0); });
    ExpectAbort([&] { static_cast<void>(list.Block(16)); });
    ExpectAbort([&] { static_cast<void>(list.BlockShare(-1)); });
}
} // namespace
