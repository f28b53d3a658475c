#include "cow_BtreeBuilder.h"
#include "cow_BtreeUtils.h"
#include "cow_String.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
using Map = cow_Btree<cow_String, int>;

/// Maps keyed by text, in the order that each test sets.
class StringKeyOrderTest : public testing::Test
{
protected:
    void TearDown() override { atr_setNaturalOrder(false); }

    static Map MapOf(const std::vector<const char*>& keys)
    {
        Map map;
        for (const char* key : keys)
            map.InsertUnlessMember(cow_String(key), 1);
        return map;
    }

    static std::vector<std::string> KeysOf(const Map& map)
    {
        const cow_List<cow_String> keys = cow_BtreeUtils<cow_String, int>::cow_Keys(map);
        std::vector<std::string> texts;
        for (int i = 0; i < keys.Count(); ++i)
            texts.emplace_back(keys[i].CString());
        return texts;
    }
};

TEST_F(StringKeyOrderTest, NaturalOrderTakesDigitsAsNumbers)
{
    atr_setNaturalOrder(true);
    EXPECT_EQ(KeysOf(MapOf({"a10", "a2"})), (std::vector<std::string>{"a2", "a10"}));
}

TEST_F(StringKeyOrderTest, PlainOrderGoesByteByByte)
{
    EXPECT_EQ(KeysOf(MapOf({"a2", "a10"})), (std::vector<std::string>{"a10", "a2"}));
}

TEST_F(StringKeyOrderTest, BytesAreUnsignedAndCaseCounts)
{
    EXPECT_EQ(KeysOf(MapOf({"\xC3\xA4", "z", "a", "B"})),
              (std::vector<std::string>{"B", "a", "z", "\xC3\xA4"}));
}

TEST_F(StringKeyOrderTest, NullTextIsTheEmptyOne)
{
    for (const bool natural : {false, true})
    {
        atr_setNaturalOrder(natural);
        Map map = MapOf({"b", ""});
        EXPECT_FALSE(map.InsertUnlessMember(cow_String(), 2));
        EXPECT_FALSE(map.InsertUnlessMember(cow_String(static_cast<const char*>(nullptr)), 3));
        EXPECT_EQ(KeysOf(map), (std::vector<std::string>{"", "b"}));
        EXPECT_TRUE(map.Remove(cow_String()));
        EXPECT_EQ(map.Count(), 1);
    }
}

TEST_F(StringKeyOrderTest, MapFindsEveryNameInEitherOrder)
{
    for (const bool natural : {false, true})
    {
        atr_setNaturalOrder(natural);
        Map map;
        for (int number = 0; number < 1000; ++number)
            ASSERT_TRUE(map.InsertUnlessMember(
                cow_String(("Step-" + std::to_string(number * 7 % 1000)).c_str()), number));
        for (int number = 0; number < 1000; ++number)
        {
            const int* value =
                map.ConstFind(cow_String(("Step-" + std::to_string(number * 7 % 1000)).c_str()));
            ASSERT_NE(value, nullptr);
            EXPECT_EQ(*value, number);
        }
        EXPECT_EQ(map.ConstFind(cow_String("Step-1000")), nullptr);
        EXPECT_EQ(map.ConstFind(cow_String("Step-")), nullptr);
        const auto keys = KeysOf(map);
        EXPECT_EQ(keys[2], natural ? "Step-2" : "Step-10");
    }
}

TEST_F(StringKeyOrderTest, BuilderFollowsTheFlagToo)
{
    for (const bool natural : {false, true})
    {
        atr_setNaturalOrder(natural);
        cow_BtreeBuilder<cow_String, int> builder;
        for (int number = 0; number < 100; ++number)
            EXPECT_TRUE(builder.Add(cow_String(std::to_string(number).c_str()), number));
        const Map map = builder.Build();
        EXPECT_EQ(map.Count(), 100);
        EXPECT_EQ(*map.ConstFind(cow_String("42")), 42);
        EXPECT_EQ(KeysOf(map)[2], natural ? "2" : "10");
    }
}
} // namespace
