#include "app_ChartPicture.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include <fmt/format.h>

namespace
{

using Scale = app_Axis::Scale;
using Numbers = std::vector<double> app_Series::*;

constexpr int mostTicksUpward = 7;
constexpr std::size_t mostNamed = 18;
constexpr std::size_t mostMarked = 40;
// A record of more points than these is drawn with a finer pen.
constexpr std::size_t manyPoints = 300;
constexpr double lettersSize = 12.0;

constexpr app_Pen gridPen{"#dddddd", 1.0};
constexpr app_Pen zeroPen{"#999999", 1.0};
constexpr app_Pen framePen{"#222222", 1.0};

// Colors that differ in brightness too; a further round of them is dashed.
constexpr const char* colors[] = {"#1f5fa8", "#d1601f", "#2c8a3d", "#8e3fa0",
                                  "#a8891a", "#17879b", "#b02a3a", "#555555"};
constexpr const char* dashes[] = {"", "7 4", "2 3", "9 3 2 3"};

app_Pen PenOf(std::size_t series)
{
    return {colors[series % std::size(colors)], 1.8, dashes[series / std::size(colors) % std::size(dashes)]};
}

struct Range
{
    double low;
    double high;
};

Range RangeOf(const app_Chart& chart, Numbers numbers)
{
    Range range{(chart.series.front().*numbers).front(), (chart.series.front().*numbers).front()};
    for (const app_Series& series : chart.series)
    {
        const auto [low, high] = std::minmax_element((series.*numbers).begin(), (series.*numbers).end());
        range = {std::min(range.low, *low), std::max(range.high, *high)};
    }
    return range;
}

Scale ScaleFor(const app_Chart& chart, const Range& range)
{
    constexpr double spanOfDecades = 50.0;
    const bool isWide = range.low >= app_Axis::Smallest && range.high / range.low >= spanOfDecades;
    return chart.mayBeLogarithmic && isWide ? Scale::Logarithmic : Scale::Linear;
}

/// Whether the texts at the ticks of a level axis keep apart.
bool AreTicksApart(const app_Axis& axis)
{
    constexpr double gap = 10.0;
    double reached = -app_ChartFrame::Width;
    for (const double tick : axis.Ticks())
    {
        const double middle = axis.Part(tick) * app_ChartFrame::Width;
        const double half = app_TextWidth(axis.TickText(tick), lettersSize) / 2.0;
        if (middle - half < reached + gap)
            return false;
        reached = middle + half;
    }
    return true;
}

app_Axis LevelAxis(const app_Chart& chart)
{
    Range range = RangeOf(chart, &app_Series::x);
    if (range.low == range.high)
        range.high += range.low == 0.0 ? 1.0 : std::abs(range.low);
    const Scale scale = ScaleFor(chart, range);
    int most = 10;
    app_Axis axis(range.low, range.high, scale, most);
    while (most > 2 && !AreTicksApart(axis))
        axis = app_Axis(range.low, range.high, scale, --most);
    return axis;
}

app_Axis UpwardAxis(const app_Chart& chart)
{
    Range range = RangeOf(chart, &app_Series::y);
    const Scale scale = ScaleFor(chart, range);
    if (chart.isYFromZero && scale == Scale::Linear)
        range = {std::min(range.low, 0.0), std::max(range.high, 0.0)};
    return app_Axis(range.low, range.high, scale, mostTicksUpward);
}

void DrawLevelAxis(app_Svg& svg, const app_Axis& axis, const std::string& name)
{
    constexpr double height = app_ChartFrame::Height;
    for (const double tick : axis.Ticks())
    {
        const double x = axis.Part(tick) * app_ChartFrame::Width;
        svg.Line({x, 0.0}, {x, height}, gridPen);
        svg.Line({x, height}, {x, height + 5.0}, framePen);
        svg.Text({x, height + 16.0}, axis.TickText(tick), {lettersSize, app_Anchor::Middle});
    }
    svg.Text({app_ChartFrame::Width / 2.0, height + 40.0}, name, {13.0, app_Anchor::Middle});
}

void DrawUpwardAxis(app_Svg& svg, const app_Axis& axis, const std::string& name)
{
    double widest = 0.0;
    for (const double tick : axis.Ticks())
    {
        const double y = (1.0 - axis.Part(tick)) * app_ChartFrame::Height;
        const bool isZero = tick == 0.0;
        svg.Line({0.0, y}, {app_ChartFrame::Width, y}, isZero ? zeroPen : gridPen);
        svg.Line({-5.0, y}, {0.0, y}, framePen);
        svg.Text({-9.0, y}, axis.TickText(tick), {lettersSize, app_Anchor::End});
        widest = std::max(widest, app_TextWidth(axis.TickText(tick), lettersSize));
    }
    app_Lettering upward{13.0, app_Anchor::Middle};
    upward.isUpward = true;
    svg.Text({-9.0 - widest - 14.0, app_ChartFrame::Height / 2.0}, name, upward);
}

void DrawFrame(app_Svg& svg)
{
    constexpr double right = app_ChartFrame::Width;
    constexpr double bottom = app_ChartFrame::Height;
    svg.Polyline({{0.0, 0.0}, {0.0, bottom}, {right, bottom}}, framePen);
}

/// What can be seen of a line: where many points follow each other within one unit of x, the first and the
/// last of them, the highest and the lowest.
std::vector<app_Point> Visible(const std::vector<app_Point>& points)
{
    constexpr std::ptrdiff_t few = 4;
    std::vector<app_Point> visible;
    for (auto begin = points.begin(); begin != points.end();)
    {
        const auto end =
            std::find_if(begin, points.end(),
                         [begin](app_Point point) { return std::floor(point.x) != std::floor(begin->x); });
        if (end - begin <= few)
            visible.insert(visible.end(), begin, end);
        else
        {
            auto [low, high] =
                std::minmax_element(begin, end, [](app_Point a, app_Point b) { return a.y < b.y; });
            const auto [one, other] = std::minmax(low, high);
            visible.insert(visible.end(), {*begin, *one, *other, *(end - 1)});
        }
        begin = end;
    }
    return visible;
}

void DrawSeries(app_Svg& svg, const app_ChartFrame& frame, const app_Chart& chart, std::size_t number)
{
    constexpr double radius = 2.6;
    constexpr double heldPenWidth = 1.1;
    const app_Series& series = chart.series[number];
    app_Pen pen = PenOf(number);
    if (chart.hasPoints && series.x.size() > manyPoints)
        pen.width = 1.1;
    std::vector<app_Point> points;
    for (std::size_t i = 0; i < series.x.size(); ++i)
        points.push_back(frame.At(series.x[i], series.y[i]));
    if (chart.isHeldAtEnd)
        svg.Line(points.back(), {app_ChartFrame::Width, points.back().y}, {pen.color, heldPenWidth, "5 4"});
    if (points.size() > 1)
        svg.Polyline(Visible(points), pen);
    if (points.size() > 1 && (!chart.hasPoints || points.size() > mostMarked))
        return;
    for (const app_Point& point : points)
        svg.Dot(point, radius, pen.color);
}

/// The names of the curves in a column at the right.
void DrawLegend(app_Svg& svg, const app_Chart& chart)
{
    constexpr double left = app_ChartFrame::Width + 24.0;
    constexpr double lineLength = 26.0;
    constexpr double lineHeight = 19.0;
    double y = 8.0;
    for (std::size_t i = 0; i < std::min(chart.series.size(), mostNamed); ++i, y += lineHeight)
    {
        svg.Line({left, y}, {left + lineLength, y}, PenOf(i));
        svg.Text({left + lineLength + 8.0, y}, chart.series[i].name);
    }
    if (chart.series.size() > mostNamed)
        svg.Text({left, y}, fmt::format("and {} more", chart.series.size() - mostNamed));
}

} // namespace

app_ChartFrame::app_ChartFrame(const app_Chart& chart) : x(LevelAxis(chart)), y(UpwardAxis(chart)) {}

app_Point app_ChartFrame::At(double xNumber, double yNumber) const
{
    return {x.Part(xNumber) * Width, (1.0 - y.Part(yNumber)) * Height};
}

void app_DrawChart(app_Svg& svg, const app_Chart& chart)
{
    const app_ChartFrame frame(chart);
    DrawLevelAxis(svg, frame.X(), chart.xName);
    DrawUpwardAxis(svg, frame.Y(), chart.yName);
    for (std::size_t i = 0; i < chart.series.size(); ++i)
        DrawSeries(svg, frame, chart, i);
    DrawFrame(svg);
    if (chart.series.size() > 1 || !chart.series.front().name.empty())
        DrawLegend(svg, chart);
}
