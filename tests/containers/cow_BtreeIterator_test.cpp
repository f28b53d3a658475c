#include "cow_BtreeTestSupport.h"

#include <iterator>
#include <rapidcheck/gtest.h>

namespace
{
using Map = cow_Btree<int, int>;
using Iterator = cow_BtreeIterator<int, int>;

Map MapOf(const std::vector<int>& keys)
{
    Map map;
    for (const int key : keys)
        map.InsertUnlessMember(key, 10 * key);
    return map;
}

class BtreeIteratorTest : public MapTest
{};

TEST_F(BtreeIteratorTest, NewIteratorStandsNowhere)
{
    const Map map = MapOf({1, 2});
    Iterator entry(map);
    EXPECT_TRUE(entry.IsExhausted());
    EXPECT_FALSE(entry.Next());
    EXPECT_FALSE(entry.Previous());
    EXPECT_TRUE(entry.IsExhausted());
}

TEST_F(BtreeIteratorTest, EmptyMapHasNoEntry)
{
    const Map map;
    Iterator entry(map);
    EXPECT_FALSE(entry.First());
    EXPECT_FALSE(entry.Last());
    EXPECT_TRUE(entry.IsExhausted());
}

TEST_F(BtreeIteratorTest, GoesUpAndDown)
{
    const Map map = MapOf({5, 2, 8, 1, 9, 3});
    Iterator entry(map);
    std::vector<int> keys;
    for (entry.First(); !entry.IsExhausted(); entry.Next())
    {
        keys.push_back(entry.Key());
        EXPECT_EQ(entry.Value(), 10 * entry.Key());
    }
    EXPECT_EQ(keys, (std::vector<int>{1, 2, 3, 5, 8, 9}));
    keys.clear();
    for (entry.Last(); !entry.IsExhausted(); entry.Previous())
        keys.push_back(entry.Key());
    EXPECT_EQ(keys, (std::vector<int>{9, 8, 5, 3, 2, 1}));
    EXPECT_FALSE(entry.Next()) << "exhausted stays exhausted";
}

TEST_F(BtreeIteratorTest, StackIsFreedWhenItEndsOrIsDestroyed)
{
    const Map map = MapOf({5, 2, 8, 1, 9, 3});
    const std::size_t blocks = mem_BlocksInUse();
    {
        Iterator entry(map);
        entry.First();
        EXPECT_EQ(mem_BlocksInUse(), blocks + 3) << "a cell for each of 5, 2, 1";
        entry.Next();
        EXPECT_EQ(mem_BlocksInUse(), blocks + 2);
        entry.First();
        EXPECT_EQ(mem_BlocksInUse(), blocks + 3) << "starting again empties the stack first";
        while (entry.Next())
        {}
        EXPECT_EQ(mem_BlocksInUse(), blocks);
        entry.Last();
    }
    EXPECT_EQ(mem_BlocksInUse(), blocks);
}

TEST_F(BtreeIteratorTest, SharesNothing)
{
    const Map map = MapOf({2, 1, 3});
    Iterator entry(map);
    entry.First();
    EXPECT_EQ(map.Root()->ShareCount(), 1);
}

RC_GTEST_FIXTURE_PROP(BtreeIteratorTest, WalksAsAStandardIterator, ())
{
    const auto keys = *rc::gen::nonEmpty(rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 200)));
    const Map map = MapOf(keys);
    std::map<int, int> standard;
    for (const int key : keys)
        standard.emplace(key, 10 * key);
    const auto turns = *rc::gen::container<std::vector<bool>>(rc::gen::arbitrary<bool>());
    const bool atEnd = *rc::gen::arbitrary<bool>();

    Iterator entry(map);
    auto expected = atEnd ? std::prev(standard.end()) : standard.begin();
    RC_ASSERT((atEnd ? entry.Last() : entry.First()));
    for (const bool ahead : turns)
    {
        RC_ASSERT(entry.Key() == expected->first);
        RC_ASSERT(entry.Value() == expected->second);
        if (ahead ? std::next(expected) == standard.end() : expected == standard.begin())
        {
            RC_ASSERT(!(ahead ? entry.Next() : entry.Previous()));
            RC_ASSERT(entry.IsExhausted());
            return;
        }
        RC_ASSERT((ahead ? entry.Next() : entry.Previous()));
        ahead ? ++expected : --expected;
    }
}
} // namespace
