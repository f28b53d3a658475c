#include "app_Plot.h"

#include "app_Progress.h"
#include "app_Table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

namespace
{

TEST(Plot, DrawsARampAsADiagonal)
{
    EXPECT_EQ("▁▂▃▄▅▆▇█", app_Sparkline({{0, 1}, {0, 1}, "time"}, 8));
    const std::string plot = app_Plot({{0, 1}, {0, 10}, "time"}, 0);
    EXPECT_EQ(14, std::count(plot.begin(), plot.end(), '\n'));
    EXPECT_EQ(0U, plot.find("        10 ┤"));
    EXPECT_NE(std::string::npos, plot.find("         0 ┤"));
    EXPECT_NE(std::string::npos, plot.find("time"));
    for (std::size_t begin = 0; begin < plot.size(); begin = plot.find('\n', begin) + 1)
        EXPECT_LE(app_Width(plot.substr(begin, plot.find('\n', begin) - begin)), 84U);
}

TEST(Plot, HasNothingToDrawForASinglePoint)
{
    EXPECT_EQ("", app_Plot({{0}, {1}, "time"}, 0));
    EXPECT_EQ("", app_Sparkline({{}, {}, "time"}, 8));
}

TEST(Plot, DrawsWhatCanBeDrawnOfStrangeNumbers)
{
    constexpr double largest = std::numeric_limits<double>::max();
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_NE("", app_Plot({{0, 1, 2}, {-largest, largest, 0}, "time"}, 0));
    EXPECT_NE("", app_Plot({{0, 0}, {3, 3}, "time"}, 0));
    EXPECT_NE("", app_Sparkline({{5, 0, 1}, {largest, -largest, largest}, "time"}, 8));
    EXPECT_EQ("", app_Plot({{0, infinity, 2}, {nan, 1, infinity}, "time"}, 0));
}

TEST(Table, LinesUpColumnsAndLeavesOutEmptyOnes)
{
    app_Table table({app_Table::Align::Left, app_Table::Align::Left, app_Table::Align::Right});
    table.Add({"größe", "", "1"});
    table.Add({"x", "", "10"});
    EXPECT_EQ("  größe   1\n  x      10\n", table.Text(2));
}

TEST(Progress, DrawsABar)
{
    EXPECT_EQ("[####################                    ] 50 %", app_Progress::Bar(5, 10));
    EXPECT_EQ("[########################################] 100 %", app_Progress::Bar(11, 10));
    EXPECT_EQ("[########################################] 100 %", app_Progress::Bar(0, 0));
}

} // namespace
