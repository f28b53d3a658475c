#include "cow_BtreeBuilder.h"
#include "cow_BtreeTestSupport.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <rapidcheck/gtest.h>

namespace
{
using Map = cow_Btree<int, int>;
using Builder = cow_BtreeBuilder<int, int>;

class BtreeBuilderTest : public MapTest
{};

/// True when no node needs a rotation, where an absent child is as tall as a leaf.
bool IsBalanced(const Map::Handle* handle)
{
    if (handle == nullptr)
        return true;
    const auto tall = [](const Map::Handle* child) { return std::max(Depth(child), 1); };
    const Map::Node& node = **handle;
    return std::abs(tall(node.Left()) - tall(node.Right())) <= 1 && IsBalanced(node.Left()) &&
           IsBalanced(node.Right());
}

TEST_F(BtreeBuilderTest, NothingAddedGivesAnEmptyMap)
{
    Builder builder;
    const Map map = builder.Build();
    EXPECT_EQ(map.Root(), nullptr);
    EXPECT_EQ(map.Count(), 0);
}

TEST_F(BtreeBuilderTest, AscendingKeysGiveABalancedTreeOfLeastHeight)
{
    for (int n = 1; n <= 300; ++n)
    {
        Builder builder;
        for (int key = 0; key < n; ++key)
            EXPECT_TRUE(builder.Add(key, 10 * key));
        const Map map = builder.Build();
        EXPECT_EQ(map.Count(), n);
        EXPECT_EQ(Depth(map.Root()), std::bit_width(static_cast<unsigned>(n))) << n;
        EXPECT_TRUE(HeightsAreExact(map.Root())) << n;
        EXPECT_TRUE(IsBalanced(map.Root())) << n;
        const auto entries = Entries(map);
        ASSERT_EQ(entries.size(), static_cast<std::size_t>(n));
        for (int key = 0; key < n; ++key)
            EXPECT_EQ(entries[static_cast<std::size_t>(key)], std::make_pair(key, 10 * key));
    }
}

TEST_F(BtreeBuilderTest, MapIsNotSharedWithTheBuilder)
{
    Builder builder;
    builder.Add(1, 10);
    builder.Add(2, 20);
    const Map map = builder.Build();
    EXPECT_EQ(map.Root()->ShareCount(), 1);
    EXPECT_EQ(builder.Build().Count(), 0) << "the builder is empty again";
    builder.Add(0, 5);
    EXPECT_EQ(Shape(builder.Build()), "0:0");
    EXPECT_EQ(map.Count(), 2);
}

TEST_F(BtreeBuilderTest, EqualKeysKeepTheFirstValue)
{
    Builder builder;
    EXPECT_TRUE(builder.Add(1, 10));
    EXPECT_FALSE(builder.Add(1, 11));
    EXPECT_TRUE(builder.Add(2, 20));
    EXPECT_FALSE(builder.Add(1, 12)) << "from here on by insertion";
    EXPECT_FALSE(builder.Add(2, 21));
    EXPECT_TRUE(builder.Add(3, 30));
    const Map map = builder.Build();
    EXPECT_EQ(Entries(map), (std::vector<std::pair<int, int>>{{1, 10}, {2, 20}, {3, 30}}));
}

TEST_F(BtreeBuilderTest, BuilderThatIsGivenUpFreesItsEntries)
{
    {
        cow_BtreeBuilder<int, Tracked> ascending;
        for (int key = 0; key < 1000; ++key)
            ascending.Add(key, Tracked(key));
        cow_BtreeBuilder<int, Tracked> inserted;
        inserted.Add(2, Tracked(2));
        inserted.Add(1, Tracked(1));
    }
}

TEST_F(BtreeBuilderTest, FailedCopyLeavesTheEntriesBefore)
{
    {
        cow_BtreeBuilder<int, Tracked> builder;
        builder.Add(1, Tracked(10));
        Tracked::FailAfter(0);
        EXPECT_THROW(builder.Add(2, Tracked(20)), Tracked::Failure);

        EXPECT_TRUE(builder.Add(2, Tracked(21)));
        EXPECT_EQ(Shape(builder.Build()), "2:1(1:0,-)");
    }
}

RC_GTEST_FIXTURE_PROP(BtreeBuilderTest, GivesWhatInsertionGives, (bool inOrder))
{
    auto keys = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 300));
    if (inOrder)
        std::sort(keys.begin(), keys.end());
    Builder builder;
    Map inserted;
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        const int value = static_cast<int>(i);
        RC_ASSERT(builder.Add(keys[i], value) == inserted.InsertUnlessMember(keys[i], value));
    }
    Map built = builder.Build();
    RC_ASSERT(built.Count() == inserted.Count());
    RC_ASSERT(Entries(built) == Entries(inserted));
    RC_ASSERT(HeightsAreExact(built.Root()));
    for (const int key : keys)
        RC_ASSERT(built.Remove(key) == inserted.Remove(key));
    RC_ASSERT(built.Count() == 0);
}
} // namespace
