#include "gsl_Vector.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace
{
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();

TEST(gsl_Vector, IsTheDifferenceOfTwoPoints)
{
    const gsl_Vector way = gsl_Point{4.0, 1.5, -1.0} - gsl_Point{1.0, 2.0, -3.0};
    EXPECT_EQ(way, (gsl_Vector{3.0, -0.5, 2.0}));
}

TEST(gsl_Vector, MagnitudeNeitherOverflowsNorVanishes)
{
    struct Case
    {
        gsl_Vector vector;
        double magnitude;
    };
    const Case cases[] = {
        {{0.0, 0.0, 0.0}, 0.0},
        {{-0.0, 0.0, 0.0}, 0.0},
        {{3.0, 4.0, 0.0}, 5.0},
        {{-2.0, 3.0, -6.0}, 7.0},
        {{0.6 * largest, 0.0, 0.8 * largest}, largest},
        {{1e300, 0.0, 0.0}, 1e300},
        {{0.0, smallest, 0.0}, smallest},
        {{largest, largest, largest}, infinity},
        {{-infinity, 1.0, 1.0}, infinity},
        {{nan, infinity, 1.0}, infinity},
    };
    for (const Case& each : cases)
        EXPECT_DOUBLE_EQ(each.vector.ComputeMagnitude(), each.magnitude);
}

TEST(gsl_Vector, MagnitudeOfANaNIsNaN)
{
    EXPECT_TRUE(std::isnan((gsl_Vector{1.0, nan, 1.0}).ComputeMagnitude()));
}

TEST(gsl_Vector, ZeroToleranceTellsRoundingFromLength)
{
    EXPECT_GT(gsl_ZeroTolerance(), 0.0);
    const gsl_Vector rounding = gsl_Point{0.1 + 0.2, 0.0, 0.0} - gsl_Point{0.3, 0.0, 0.0};
    EXPECT_GT(rounding.ComputeMagnitude(), 0.0);
    EXPECT_LT(rounding.ComputeMagnitude(), gsl_ZeroTolerance());
    EXPECT_GT((gsl_Vector{0.001, 0.0, 0.0}).ComputeMagnitude(), gsl_ZeroTolerance());
}
} // namespace
