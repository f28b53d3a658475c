// The layout of lists and who shares what, step by step, against the plain form of the algorithms.

#include "cow_ListLayout.h"

#include "cow_Tracked.h"

#include <gtest/gtest.h>
#include <iterator>
#include <ostream>
#include <rapidcheck/gtest.h>
#include <vector>

namespace
{

/// A list and the layout that it must have.
struct Pair
{
    cow_List<int> list;
    ListLayout layout;
};

/// One change, with a number of its own to choose a place or a size by.
struct Operation
{
    const char* name;
    void (*apply)(Pair& pair, int number);
};

constexpr Operation operations[] = {
    {"Append",
     [](Pair& pair, int number)
     {
         pair.list.Append(number);
         pair.layout.Append();
     }},
    {"Prepend",
     [](Pair& pair, int number)
     {
         pair.list.Prepend(number);
         pair.layout.Prepend();
     }},
    {"InsertIndex",
     [](Pair& pair, int number)
     {
         const int place = number % (pair.list.Count() + 1);
         pair.list.InsertIndex(place, number);
         pair.layout.InsertIndex(place);
     }},
    {"RemoveIndex",
     [](Pair& pair, int number)
     {
         if (pair.list.IsEmpty())
             return;
         const int place = number % pair.list.Count();
         pair.list.RemoveIndex(place);
         pair.layout.RemoveIndex(place);
     }},
    {"removal from the front",
     [](Pair& pair, int number)
     {
         for (int left = number % 40; left > 0 && !pair.list.IsEmpty(); --left)
         {
             pair.list.RemoveIndex(0);
             pair.layout.RemoveIndex(0);
         }
     }},
    {"Pop",
     [](Pair& pair, int)
     {
         if (pair.list.IsEmpty())
             return;
         pair.list.Pop();
         pair.layout.RemoveIndex(pair.layout.Count() - 1);
     }},
    {"Get",
     [](Pair& pair, int number)
     {
         if (pair.list.IsEmpty())
             return;
         *pair.list.Get(number % pair.list.Count()) = number;
         pair.layout.Get(number % pair.layout.Count());
     }},
    {"Resize",
     [](Pair& pair, int number)
     {
         pair.list.Resize(number);
         pair.layout.Resize(number);
     }},
    {"Fill",
     [](Pair& pair, int number)
     {
         pair.list.Fill(number, 1);
         if (number > pair.layout.Count())
             pair.layout.Extend(number - pair.layout.Count());
     }},
    {"Concatenate",
     [](Pair& pair, int number)
     {
         cow_List<int> other;
         other.Fill(number % 100, 1);
         pair.list.Concatenate(other);
         pair.layout.Extend(number % 100);
     }},
    {"SetFromArray",
     [](Pair& pair, int number)
     {
         const std::vector<int> array(static_cast<std::size_t>(number), 1);
         pair.list.SetFromArray(array.data(), number);
         pair.layout.SetFromArray(number);
     }},
    {"Slice",
     [](Pair& pair, int number)
     {
         const int count = pair.list.Count();
         pair.list = pair.list.Slice(number % 50, count);
         pair.layout = pair.layout.Slice(std::min(number % 50, count), count);
     }},
    {"Initialize",
     [](Pair& pair, int number)
     {
         pair.list.Initialize(3 * number);
         pair.layout.Initialize(3 * number);
     }},
};

struct Step
{
    int operation;
    int number;
    int list;
    bool isCopiedBefore;
};

std::ostream& operator<<(std::ostream& out, const Step& step)
{
    return out << operations[step.operation].name << ' ' << step.number << " of " << step.list
               << (step.isCopiedBefore ? ", copied before" : "");
}

rc::Gen<Step> AnyStep()
{
    using namespace rc;
    return gen::construct<Step>(gen::inRange(0, static_cast<int>(std::size(operations))),
                                gen::resize(100, gen::inRange(0, 600)), gen::inRange(0, 4),
                                gen::weightedElement<bool>({{3, false}, {1, true}}));
}

RC_GTEST_PROP(cow_ListLayout, IsThatOfTheAlgorithms, ())
{
    constexpr std::size_t mostLists = 4;
    std::vector<Pair> pairs(1);
    for (const Step& step : *rc::gen::container<std::vector<Step>>(AnyStep()))
    {
        const std::size_t at = static_cast<std::size_t>(step.list) % pairs.size();
        if (step.isCopiedBefore)
        {
            const Pair copy = pairs[at];
            if (pairs.size() < mostLists)
                pairs.push_back(copy);
            else
                pairs[(at + 1) % mostLists] = copy;
        }
        operations[step.operation].apply(pairs[at], step.number);
        for (const Pair& pair : pairs)
            RC_ASSERT(HasLayout(pair.list, pair.layout));
    }
}

TEST(cow_ListLayout, EmptyListForgetsItsBlockSize)
{
    const struct
    {
        const char* what;
        void (*empty)(cow_List<int>& list);
    } rows[] = {
        {"resized", [](cow_List<int>& list) { list.Resize(0); }},
        {"set from nothing", [](cow_List<int>& list) { list.SetFromArray(nullptr, 0); }},
        {"nothing put behind it", [](cow_List<int>& list) { list.Concatenate(cow_List<int>()); }},
    };
    for (const auto& row : rows)
    {
        cow_List<int> list;
        list.Initialize(1000);
        ASSERT_EQ(list.BlockShift(), 6);
        row.empty(list);
        EXPECT_EQ(list.BlockShift(), 4) << row.what;
        EXPECT_EQ(list.TableSize(), 0) << row.what;
    }
}

TEST(cow_ListLayout, SliceKeepsTheSlackOfItsTable)
{
    cow_List<int> list;
    list.Fill(2000, 1);
    for (const auto& [size, slots] : {std::pair(0, 0), {1, 16}, {255, 16}, {300, 26}, {1000, 32}})
        EXPECT_EQ(list.Slice(5, 5 + size).TableSize(), slots) << size;
}

TEST(cow_ListLayout, StepsCanBeTakenOneByOne)
{
    const TrackedScope tracked;
    {
        cow_List<Tracked> list;
        for (int i = 0; i < 20; ++i)
            list.Append(Tracked(i));
        const cow_List<Tracked> copy(list);
        list.CopyArray();
        EXPECT_EQ(list.TableShare(), 1);
        EXPECT_EQ(list.BlockShare(0), 2);
        EXPECT_EQ(tracked.Live(), 20u) << "elements stay";
        list.IsolateRange(17, 18);
        EXPECT_EQ(list.BlockShare(0), 2);
        EXPECT_EQ(list.BlockShare(1), 1);
        EXPECT_EQ(tracked.Live(), 24u);
        list.Prefix();
        EXPECT_EQ(list.Offset(), 14 * 16);
        list.Prefix();
        EXPECT_EQ(list.Offset(), 14 * 16) << "there is room at the front already";
        list.IsolateRange(-1, -1);
        EXPECT_EQ(list.BlockShare(13), 1);
        EXPECT_EQ(list.Count(), 20);
        EXPECT_EQ(copy[19].Value(), 19);
    }
    EXPECT_TRUE(tracked.IsClean());
}

TEST(cow_ListLayout, ElementsAreBuiltWithinABlock)
{
    cow_List<int> list(7);
    const int source[] = {1, 2, 3};
    list.Resize(4);
    list.IsolateRange(1, 3);
    list.InitializeBlock(source, 1, 3);
    EXPECT_EQ(list.Count(), 1) << "the count is the caller's";
    EXPECT_EQ(std::vector<int>(list.Block(0)->data, list.Block(0)->data + 4), (std::vector<int>{7, 1, 2, 3}));
}

/// Notes its number when it is destroyed.
struct Noted
{
    explicit Noted(int n) : number(n) {}
    Noted(const Noted&) = default;
    ~Noted() { destroyed.push_back(number); }

    int number;
    static inline std::vector<int> destroyed;
};

/// Whether lists of the type know members of equal value.
template <class T>
concept KnowsMembers = requires(cow_List<T> list, const T& value)
{
    list.IsEqual(list);
    list.FindMember(value);
    list.IsMember(value);
    list.AppendUnlessMember(value);
    list.RemoveMember(value);
    list.Difference(list);
};
static_assert(KnowsMembers<int> && KnowsMembers<Tracked> && !KnowsMembers<Noted>);

/// The numbers from `first` down to `last`, behind `before`.
std::vector<int> Down(std::vector<int> before, int first, int last)
{
    for (int number = first; number >= last; --number)
        before.push_back(number);
    return before;
}

TEST(cow_ListLayout, ShrinkingDestroysEachBlockFromItsEndAndTheCutOneLast)
{
    cow_List<Noted> list;
    for (int i = 0; i < 40; ++i)
        list.Append(Noted(i));
    Noted::destroyed.clear();
    list.Resize(10);
    EXPECT_EQ(Noted::destroyed, Down(Down(Down({}, 31, 16), 39, 32), 15, 10));
    Noted::destroyed.clear();
    list.Resize(0);
    EXPECT_EQ(Noted::destroyed, Down({}, 9, 0));
}

} // namespace
