#include "QRTBasCoreUtils.h"

#include "QRTBasAlloc.h"
#include "omi_gettimecounter.h"

#include <gtest/gtest.h>

namespace
{
TEST(QRTBasCoreUtils, TheFirstAndTheLastCallMoveTheTally)
{
    int below = 0;
    QRTBasAlloc_initialize(below);
    int tally = 0;
    QRTBasCoreUtils_initialize(tally);
    EXPECT_EQ(tally, 1);
    QRTBasCoreUtils_initialize(tally);
    EXPECT_EQ(tally, 1);
    QRTBasCoreUtils_finalize(tally);
    EXPECT_EQ(tally, 1);
    QRTBasCoreUtils_finalize(tally);
    EXPECT_EQ(tally, 0);
    QRTBasAlloc_finalize(below);
    EXPECT_EQ(below, 0);
}

TEST(QRTBasCoreUtils, BringsUpWhatItStandsOn)
{
    int tally = 0;
    QRTBasCoreUtils_initialize(tally);
    EXPECT_EQ(tally, 2);
    QRTBasCoreUtils_finalize(tally);
    EXPECT_EQ(tally, 0);
}

TEST(omi_gettimecounter, RunsForwardsAtEachCall)
{
    double last = omi_gettimecounter();
    const double first = last;
    for (int i = 0; i < 100000; ++i)
    {
        const double now = omi_gettimecounter();
        ASSERT_GT(now, last);
        last = now;
    }
    EXPECT_LT(last - first, 60.0);
}
} // namespace
