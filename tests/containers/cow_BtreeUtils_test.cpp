#include "cow_BtreeTestSupport.h"
#include "cow_BtreeUtils.h"

namespace
{
using Map = cow_Btree<int, Tracked>;
using Utils = cow_BtreeUtils<int, Tracked>;

class BtreeUtilsTest : public MapTest
{};

TEST_F(BtreeUtilsTest, EmptyMapGivesEmptyLists)
{
    const Map map;
    EXPECT_EQ(Utils::cow_Keys(map).Count(), 0);
    EXPECT_EQ(Utils::cow_Values(map).Count(), 0);
}

TEST_F(BtreeUtilsTest, ListsAreInKeyOrder)
{
    constexpr int n = 1000;
    {
        Map map;
        for (int i = 0; i < n; ++i)
            map.InsertUnlessMember(i * 37 % n, Tracked(-(i * 37 % n)));
        const cow_List<int> keys = Utils::cow_Keys(map);
        const cow_List<Tracked> values = Utils::cow_Values(map);
        ASSERT_EQ(keys.Count(), n);
        ASSERT_EQ(values.Count(), n);
        for (int i = 0; i < n; ++i)
        {
            EXPECT_EQ(keys[i], i);
            EXPECT_EQ(values[i].Value(), -i);
        }
    }
}
} // namespace
