#include "cow_IntMultiMapInt.h"

#include <climits>
#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>
#include <vector>

namespace
{
std::vector<int> Values(const cow_IntMultiMapInt& map, int key)
{
    std::vector<int> values;
    for (const int value : map.ConstGetValues(key))
        values.push_back(value);
    return values;
}

TEST(cow_IntMultiMapInt, IsEmptyAtFirst)
{
    const cow_IntMultiMapInt map;
    EXPECT_FALSE(map.IsMember(0));
    EXPECT_EQ(map.ConstGet(0), nullptr);
    EXPECT_EQ(map.ConstGetValues(0).Count(), 0);
    EXPECT_EQ(map.Count(), 0);
}

TEST(cow_IntMultiMapInt, KeepsTheValuesOfAKeyInTheirOrder)
{
    cow_IntMultiMapInt map;
    map.Insert(5, 9);
    map.Insert(INT_MIN, 1);
    map.Insert(5, 3);
    EXPECT_TRUE(map.IsMember(5));
    map.Insert(5, 9);
    map.Insert(INT_MAX, INT_MIN);
    EXPECT_EQ(Values(map, 5), (std::vector<int>{9, 3, 9}));
    EXPECT_EQ(*map.ConstGet(5), 9);
    EXPECT_EQ(*map.ConstGet(INT_MIN), 1);
    EXPECT_EQ(*map.ConstGet(INT_MAX), INT_MIN);
    EXPECT_FALSE(map.IsMember(6));
    EXPECT_EQ(map.Count(), 5);
}

TEST(cow_IntMultiMapInt, CopiesKeepTheirContent)
{
    cow_IntMultiMapInt map;
    map.Insert(2, 1);
    cow_IntMultiMapInt copy(map);
    map.Insert(1, 7);
    EXPECT_FALSE(copy.IsMember(1));
    EXPECT_TRUE(map.IsMember(2));
    copy = map;
    map.Clear();
    EXPECT_EQ(map.Count(), 0);
    EXPECT_EQ(Values(copy, 1), std::vector<int>{7});
}

RC_GTEST_PROP(cow_IntMultiMapInt, DoesAsAMapOfListsDoes,
              (const std::vector<std::pair<signed char, int>>& steps))
{
    cow_IntMultiMapInt map;
    std::map<int, std::vector<int>> model;
    for (const auto& [key, value] : steps)
    {
        map.Insert(key, value);
        model[key].push_back(value);
        RC_ASSERT(*map.ConstGet(key) == model[key].front());
    }
    for (const auto& [key, values] : model)
        RC_ASSERT(Values(map, key) == values);
    RC_ASSERT(!map.IsMember(1000));
}
} // namespace
