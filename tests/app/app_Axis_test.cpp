#include "app_Axis.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <set>

namespace
{

using Scale = app_Axis::Scale;
using Texts = std::vector<std::string>;

Texts TextsOf(const app_Axis& axis)
{
    Texts texts;
    for (const double tick : axis.Ticks())
        texts.push_back(axis.TickText(tick));
    return texts;
}

struct Row
{
    double low;
    double high;
    Scale scale;
    int most;
    Texts ticks;
};

TEST(Axis, HasRoundTicks)
{
    const Row rows[] = {
        {0, 1, Scale::Linear, 5, {"0", "0.2", "0.4", "0.6", "0.8", "1"}},
        {0, 9.7, Scale::Linear, 5, {"0", "2", "4", "6", "8", "10"}},
        {-0.3, 0.4, Scale::Linear, 7, {"-0.3", "-0.2", "-0.1", "0", "0.1", "0.2", "0.3", "0.4"}},
        {3, 3, Scale::Linear, 5, {"1", "2", "3", "4", "5"}},
        {0, 0, Scale::Linear, 4, {"-1", "-0.5", "0", "0.5", "1"}},
        {100000, 100004, Scale::Linear, 4, {"100000", "100001", "100002", "100003", "100004"}},
        {1000000.5, 1000001.5, Scale::Linear, 2, {"1000000.5", "1000001", "1000001.5"}},
        {0, 2.1e9, Scale::Linear, 5, {"0", "5e8", "1e9", "1.5e9", "2e9", "2.5e9"}},
        {0, 3e-7, Scale::Linear, 3, {"0", "1e-7", "2e-7", "3e-7"}},
        {0.2, 50, Scale::Logarithmic, 10, {"0.2", "0.5", "1", "2", "5", "10", "20", "50"}},
        {0.3, 40, Scale::Logarithmic, 10, {"0.2", "0.5", "1", "2", "5", "10", "20", "50"}},
        {1e-3, 1e3, Scale::Logarithmic, 8, {"0.001", "0.01", "0.1", "1", "10", "100", "1000"}},
        {1e-6, 1e6, Scale::Logarithmic, 7, {"1e-6", "0.0001", "0.01", "1", "100", "10000", "1e6"}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.ticks, TextsOf(app_Axis(row.low, row.high, row.scale, row.most)))
            << row.low << " to " << row.high;
}

TEST(Axis, PlacesNumbersBetweenItsEnds)
{
    const app_Axis linear(0, 10, Scale::Linear, 5);
    EXPECT_DOUBLE_EQ(0.0, linear.Part(0));
    EXPECT_DOUBLE_EQ(0.25, linear.Part(2.5));
    EXPECT_DOUBLE_EQ(1.0, linear.Part(10));
    const app_Axis logarithmic(1, 10000, Scale::Logarithmic, 5);
    EXPECT_DOUBLE_EQ(0.0, logarithmic.Part(1));
    EXPECT_DOUBLE_EQ(0.5, logarithmic.Part(100));
    EXPECT_DOUBLE_EQ(1.0, logarithmic.Part(10000));
}

RC_GTEST_PROP(Axis, showsAnyRangeWithTicksThatDiffer, ())
{
    const auto number = []
    { return *rc::gen::inRange(-999, 1000) * std::pow(10.0, *rc::gen::inRange(-300, 297)); };
    const double a = number();
    const double b = *rc::gen::inRange(0, 3) == 0 ? a * (1.0 + 1e-7) : number();
    const double low = std::min(a, b);
    const double high = std::max(a, b);
    const int most = *rc::gen::inRange(2, 12);
    const app_Axis axis(low, high, Scale::Linear, most);
    RC_ASSERT(axis.Ticks().size() >= 2U);
    RC_ASSERT(axis.Ticks().size() <= static_cast<std::size_t>(most) + 3U);
    RC_ASSERT(axis.Part(low) >= -1e-6 && axis.Part(high) <= 1.0 + 1e-6);
    const Texts texts = TextsOf(axis);
    RC_ASSERT(std::set<std::string>(texts.begin(), texts.end()).size() == texts.size());
}

RC_GTEST_PROP(Axis, showsAnyPositiveRangeByDecades, ())
{
    const auto number = []
    { return *rc::gen::inRange(1, 1000) * std::pow(10.0, *rc::gen::inRange(-290, 297)); };
    const double a = number();
    const double b = number();
    const app_Axis axis(std::min(a, b), std::max(a, b), Scale::Logarithmic, *rc::gen::inRange(2, 12));
    for (const double n : {a, b})
        RC_ASSERT(axis.Part(n) >= -1e-6 && axis.Part(n) <= 1.0 + 1e-6);
    RC_ASSERT(axis.Ticks().size() <= 14U);
}

} // namespace
