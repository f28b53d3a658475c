#include "QRTBasAlloc.h"

#include <gtest/gtest.h>

namespace
{
TEST(QRTBasAlloc, TallyMovesOnTheFirstInitializeAndTheLastFinalize)
{
    int tally = 10;
    QRTBasAlloc_initialize(tally);
    EXPECT_EQ(tally, 11);
    QRTBasAlloc_initialize(tally);
    EXPECT_EQ(tally, 11);
    QRTBasAlloc_finalize(tally);
    EXPECT_EQ(tally, 11);
    QRTBasAlloc_finalize(tally);
    EXPECT_EQ(tally, 10);
}

TEST(QRTBasAlloc, CanBeBroughtUpAgain)
{
    int tally = 0;
    for (int round = 0; round < 3; ++round)
    {
        QRTBasAlloc_initialize(tally);
        EXPECT_EQ(tally, 1);
        QRTBasAlloc_finalize(tally);
        EXPECT_EQ(tally, 0);
    }
}
} // namespace
