#include "cow_Map.h"

#include "atr_String.h"
#include "cow_2DArray.h"

#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>
#include <string>

namespace
{
using Floats = cow_Map<cow_String, float>;

std::string Listed(const Floats& map)
{
    std::string text;
    for (cow_ConstMapIterator<cow_String, float> entry(map); entry.Valid(); entry.Next())
        text +=
            std::string(entry.Key().CString()) + "=" + std::to_string(static_cast<int>(entry.Value())) + " ";
    return text;
}

TEST(cow_Map, IsEmptyAtFirst)
{
    const Floats map;
    EXPECT_EQ(map.Count(), 0);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map.ConstGet("a"), nullptr);
    EXPECT_FALSE(map.IsMember("a"));
    EXPECT_EQ(Listed(map), "");
}

TEST(cow_Map, InsertsReplacesAndRemoves)
{
    Floats map;
    map.Insert("b", 2);
    map.Insert("", 0);
    map.Insert("ä", 3);
    map.Insert("a", 1);
    map.Insert("b", 4);
    EXPECT_EQ(Listed(map), "=0 a=1 b=4 ä=3 ");
    EXPECT_EQ(map.Count(), 4);
    ASSERT_NE(map.ConstGet("b"), nullptr);
    EXPECT_EQ(*map.ConstGet("b"), 4.0F);
    EXPECT_TRUE(map.Remove("a"));
    EXPECT_FALSE(map.Remove("a"));
    EXPECT_FALSE(map.IsMember("a"));
    EXPECT_EQ(Listed(map), "=0 b=4 ä=3 ");
    map.Clear();
    EXPECT_TRUE(map.IsEmpty());
}

TEST(cow_Map, CopiesKeepTheirContent)
{
    Floats map;
    map.Insert("a", 1);
    const Floats copy(map);
    EXPECT_TRUE(copy == map);
    *map.Get("a") = 5;
    EXPECT_EQ(map.Get("z"), nullptr);
    map.Insert("b", 2);
    EXPECT_EQ(Listed(copy), "a=1 ");
    EXPECT_EQ(Listed(map), "a=5 b=2 ");
}

TEST(cow_Map, ComparesKeysAndValues)
{
    Floats left;
    Floats right;
    EXPECT_TRUE(left == right);
    left.Insert("a", 1);
    EXPECT_FALSE(left == right);
    right.Insert("b", 1);
    EXPECT_FALSE(left == right);
    left.Insert("b", 1);
    right.Insert("a", 1);
    EXPECT_TRUE(left == right);
    right.Insert("a", 2);
    EXPECT_TRUE(left != right);
}

TEST(cow_Map, AnIteratorKeepsTheContentItWasMadeFor)
{
    Floats map;
    map.Insert("a", 1);
    map.Insert("b", 2);
    cow_ConstMapIterator<cow_String, float> entry(map);
    map.Remove("b");
    map.Insert("a", 7);
    ASSERT_TRUE(entry.Valid());
    EXPECT_EQ(entry.Value(), 1.0F);
    ASSERT_TRUE(entry.Next());
    EXPECT_EQ(entry.Key(), "b");
    EXPECT_FALSE(entry.Next());
    EXPECT_FALSE(entry.Next());
    EXPECT_FALSE(entry.Valid());
    EXPECT_TRUE(entry.First());
    EXPECT_EQ(entry.Key(), "a");
}

TEST(cow_Map, HoldsWhatTheLibrariesNeed)
{
    cow_Map<cow_String, unsigned> enumeration;
    enumeration.Insert("STEP", 0xFFFFFFFF);
    EXPECT_EQ(*enumeration.ConstGet("STEP"), 0xFFFFFFFF);
    cow_Map<unsigned, atr_String> labels;
    labels.Insert(0x2D00004, atr_raw("Tie", 0));
    EXPECT_EQ(*labels.ConstGet(0x2D00004), "Tie");
    cow_Map<cow_String, cow_2DArray<double>> arrays;
    arrays.Insert("grid", cow_2DArray<double>(2, 2));
    EXPECT_EQ(arrays.ConstGet("grid")->Rows(), 2);
    cow_Map<int, cow_Map<cow_String, cow_String>> nested;
    nested.Insert(-1, {});
    nested.Get(-1)->Insert("old", "new");
    EXPECT_EQ(*nested.ConstGet(-1)->ConstGet("old"), "new");
    const cow_MapNode<cow_String, unsigned> node("STEP", 3);
    EXPECT_EQ(node.Key(), "STEP");
    EXPECT_EQ(node.Value(), 3u);
}

RC_GTEST_PROP(cow_Map, DoesAsAPlainMapDoes, (const std::vector<std::pair<char, bool>>& steps))
{
    cow_Map<int, int> map;
    std::map<int, int> model;
    int number = 0;
    for (const auto& [key, inserts] : steps)
    {
        if (inserts)
        {
            map.Insert(key, ++number);
            model[key] = number;
        }
        else
        {
            RC_ASSERT(map.Remove(key) == (model.erase(key) == 1));
        }
    }
    RC_ASSERT(map.Count() == static_cast<int>(model.size()));
    cow_ConstMapIterator<int, int> entry(map);
    for (const auto& [key, value] : model)
    {
        RC_ASSERT(entry.Valid() && entry.Key() == key && entry.Value() == value);
        entry.Next();
    }
    RC_ASSERT(!entry.Valid());
}
} // namespace
