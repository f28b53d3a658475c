#include "QRTBasShared.h"

#include "QRTBasCoreUtils.h"

#include <gtest/gtest.h>

namespace
{
TEST(QRTBasShared, TheFirstAndTheLastCallMoveTheTally)
{
    int below = 0;
    QRTBasCoreUtils_initialize(below);
    int tally = 0;
    QRTBasShared_initialize(tally);
    QRTBasShared_initialize(tally);
    EXPECT_EQ(tally, 1);
    QRTBasShared_finalize(tally);
    EXPECT_EQ(tally, 1);
    QRTBasShared_finalize(tally);
    EXPECT_EQ(tally, 0);
    QRTBasCoreUtils_finalize(below);
    EXPECT_EQ(below, 0);
}

TEST(QRTBasShared, BringsUpWhatItStandsOn)
{
    int tally = 0;
    QRTBasShared_initialize(tally);
    EXPECT_EQ(tally, 3);
    QRTBasShared_finalize(tally);
    EXPECT_EQ(tally, 0);
}
} // namespace
