#include "QRTRomDiagEx.h"

#include "QRTBasShared.h"

#include <gtest/gtest.h>

namespace
{
TEST(QRTRomDiagEx, TheFirstAndTheLastCallMoveTheTally)
{
    int below = 0;
    QRTBasShared_initialize(below);
    int tally = 0;
    QRTRomDiagEx_initialize(tally);
    QRTRomDiagEx_initialize(tally);
    EXPECT_EQ(tally, 1);
    QRTRomDiagEx_finalize(tally);
    EXPECT_EQ(tally, 1);
    QRTRomDiagEx_finalize(tally);
    EXPECT_EQ(tally, 0);
    QRTBasShared_finalize(below);
    EXPECT_EQ(below, 0);
}

TEST(QRTRomDiagEx, BringsUpWhatItStandsOn)
{
    int tally = 0;
    QRTRomDiagEx_initialize(tally);
    EXPECT_EQ(tally, 4);
    QRTRomDiagEx_finalize(tally);
    EXPECT_EQ(tally, 0);
}
} // namespace
