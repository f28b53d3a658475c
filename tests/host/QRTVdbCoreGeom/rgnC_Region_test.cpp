#include "rgnC_RegionPair.h"

#include <gtest/gtest.h>

namespace
{
TEST(rgnC_Region, AnEmptyOneHasNoNameFlagOrKinds)
{
    const rgnC_Region empty;
    EXPECT_TRUE(empty.Name().IsEmpty());
    EXPECT_EQ(empty.Flag(), 0);
    EXPECT_EQ(empty.Kinds(), 0);
}

TEST(rgnC_Region, KeepsWhatItIsGiven)
{
    const rgnC_Region region("Set-1", 2, 9);
    EXPECT_EQ(region.Name(), "Set-1");
    EXPECT_EQ(region.Flag(), 2);
    EXPECT_EQ(region.Kinds(), 9);
}

TEST(rgnC_Region, EqualityLooksAtNameFlagAndKinds)
{
    const rgnC_Region region("Set-1", 2, 9);
    EXPECT_EQ(region, rgnC_Region("Set-1", 2, 9));
    EXPECT_NE(region, rgnC_Region("Set-2", 2, 9));
    EXPECT_NE(region, rgnC_Region("Set-1", 1, 9));
    EXPECT_NE(region, rgnC_Region("Set-1", 2, 8));
    EXPECT_EQ(rgnC_Region(), rgnC_Region(""));
}

TEST(rgnC_Region, TypeIsByTheFlagAlone)
{
    struct Case
    {
        int type;
        bool wantsFlagged;
        bool wantsUnflagged;
    };
    const Case cases[] = {
        {0, true, false}, {1, false, true}, {2, true, true}, {3, false, false}, {-1, false, false},
    };
    for (const Case& each : cases)
    {
        const auto type = static_cast<rgnC_RegionType>(each.type);
        EXPECT_EQ(rgnC_Region("Set-1", 4).IsOfType(type), each.wantsFlagged) << each.type;
        EXPECT_EQ(rgnC_Region("Set-1", -1).IsOfType(type), each.wantsFlagged) << each.type;
        EXPECT_EQ(rgnC_Region("Set-1", 0, 4).IsOfType(type), each.wantsUnflagged) << each.type;
    }
}

TEST(rgnC_RegionPair, AnEmptyOneHasEmptyEnds)
{
    const rgnC_RegionPair pair;
    EXPECT_EQ(pair.First(), rgnC_Region());
    EXPECT_EQ(pair.Second(), rgnC_Region());
    EXPECT_FALSE(pair.FirstFlag());
    EXPECT_FALSE(pair.SecondFlag());
}

TEST(rgnC_RegionPair, EqualityLooksAtBothEndsAndTheirFlags)
{
    const rgnC_Region one("Set-1");
    const rgnC_Region two("Set-2");
    const rgnC_RegionPair pair(one, two);
    EXPECT_EQ(pair, rgnC_RegionPair(one, two));
    EXPECT_NE(pair, rgnC_RegionPair(two, one));
    EXPECT_NE(pair, rgnC_RegionPair(one, one));
    EXPECT_NE(pair, rgnC_RegionPair(two, two));
    EXPECT_NE(pair, rgnC_RegionPair(one, two, true, false));
    EXPECT_NE(pair, rgnC_RegionPair(one, two, false, true));
}
} // namespace
