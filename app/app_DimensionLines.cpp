#include "app_DimensionLines.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{

constexpr double lettersSize = 12.0;
constexpr double arrowLength = 9.0;
constexpr double arrowHalf = 3.0;
constexpr double tailLength = 18.0;
// Lines shorter than this have their arrows outside.
constexpr double leastForArrows = 28.0;
constexpr double gapToSection = 26.0;
constexpr double gapOfText = 5.0;
constexpr double gapOfLines = 12.0;
constexpr double rowHeight = 28.0;
constexpr app_Pen linePen{"#222222", 0.9};
constexpr app_Pen thinPen{"#8a8a8a", 0.7};
constexpr app_Pen noPen{"", 0.0};

/// An arrow head at `tip` that points along `direction`, of length 1.
void DrawArrow(app_Svg& svg, app_Point tip, app_Point direction)
{
    const app_Point back = tip - direction * arrowLength;
    const app_Point across = app_Point{-direction.y, direction.x} * arrowHalf;
    svg.Area({app_Polygon{tip, back + across, back - across}}, linePen.color, noPen);
}

/// A line with arrows to both ends, from inside or, if it is short, from outside.
void DrawArrowLine(app_Svg& svg, app_Point from, app_Point to)
{
    const double length = app_Length(to - from);
    const app_Point along = (to - from) * (1.0 / length);
    if (length >= leastForArrows)
    {
        svg.Line(from, to, linePen);
        DrawArrow(svg, from, along * -1.0);
        DrawArrow(svg, to, along);
        return;
    }
    svg.Line(from - along * tailLength, to + along * tailLength, linePen);
    DrawArrow(svg, from, along);
    DrawArrow(svg, to, along * -1.0);
}

void DrawHere(app_Svg& svg, const app_DimensionLine& line)
{
    constexpr double nearlyUpright = 0.5;
    const double length = app_Length(line.to - line.from);
    const app_Point along = (line.to - line.from) * (1.0 / length);
    const bool isUpright = std::abs(along.x) < nearlyUpright;
    const double tail = length < leastForArrows ? tailLength : 0.0;
    const app_Point end = line.to + along * (tail + (isUpright ? lettersSize * 0.8 : gapOfText));
    DrawArrowLine(svg, line.from, line.to);
    svg.Text(end, line.text, {lettersSize, isUpright ? app_Anchor::Middle : app_Anchor::Start});
}

/// One side of the section, seen along it: positions run along the side, offsets away from the section.
class Side
{
public:
    Side(app_Side side, const app_Box& inner) : side(side), inner(inner) {}

    bool IsLevel() const { return side == app_Side::Above || side == app_Side::Below; }

    double Position(app_Point point) const { return IsLevel() ? point.x : point.y; }

    double Middle() const { return Position(inner.Middle()); }

    app_Point At(double position, double offset) const
    {
        switch (side)
        {
        case app_Side::Left:
            return {inner.Min().x - offset, position};
        case app_Side::Right:
            return {inner.Max().x + offset, position};
        case app_Side::Above:
            return {position, inner.Min().y - offset};
        default:
            return {position, inner.Max().y + offset};
        }
    }

    /// How far outside a point lies; negative if it lies within.
    double Offset(app_Point point) const
    {
        switch (side)
        {
        case app_Side::Left:
            return inner.Min().x - point.x;
        case app_Side::Right:
            return point.x - inner.Max().x;
        case app_Side::Above:
            return inner.Min().y - point.y;
        default:
            return point.y - inner.Max().y;
        }
    }

private:
    app_Side side;
    app_Box inner;
};

/// A dimension line beside the section.
struct Placed
{
    const app_DimensionLine* line;
    double low; ///< Positions along the side.
    double high;
    double textAt; ///< Where its text is anchored.
    app_Anchor anchor;
    double reachLow; ///< What it takes along the side, with tails and text.
    double reachHigh;
};

Placed PlacedOn(const Side& side, const app_DimensionLine& line)
{
    const double a = side.Position(line.from);
    const double b = side.Position(line.to);
    Placed placed{&line, std::min(a, b), std::max(a, b), a / 2.0 + b / 2.0, app_Anchor::Middle, 0.0, 0.0};
    const double length = placed.high - placed.low;
    const double tail = length < leastForArrows ? tailLength : 0.0;
    placed.reachLow = placed.low - tail;
    placed.reachHigh = placed.high + tail;
    const double textLength = side.IsLevel() ? app_TextWidth(line.text, lettersSize) : lettersSize * 1.3;
    if (!side.IsLevel())
    {
        placed.reachLow = std::min(placed.reachLow, placed.textAt - textLength / 2.0);
        placed.reachHigh = std::max(placed.reachHigh, placed.textAt + textLength / 2.0);
        placed.anchor = app_Anchor::Start;
        return placed;
    }
    if (textLength + 2.0 * gapOfText <= length)
        return placed;
    // The text goes beyond the end that lies further out.
    const bool isAfter = placed.textAt >= side.Middle();
    placed.anchor = isAfter ? app_Anchor::Start : app_Anchor::End;
    placed.textAt = isAfter ? placed.reachHigh + gapOfText : placed.reachLow - gapOfText;
    double& reach = isAfter ? placed.reachHigh : placed.reachLow;
    reach = placed.textAt + (isAfter ? textLength : -textLength);
    return placed;
}

bool Meet(const Placed& a, const Placed& b)
{
    return a.reachLow < b.reachHigh + gapOfLines && b.reachLow < a.reachHigh + gapOfLines;
}

using Row = std::vector<Placed>;

/// The lines of a side in rows, the shortest next to the section.
std::vector<Row> RowsOf(const Side& side, app_Side which, const std::vector<app_DimensionLine>& lines)
{
    std::vector<Placed> all;
    for (const app_DimensionLine& line : lines)
    {
        if (line.side == which && side.Position(line.from) != side.Position(line.to))
            all.push_back(PlacedOn(side, line));
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const Placed& a, const Placed& b) { return a.high - a.low < b.high - b.low; });
    std::vector<Row> rows;
    for (const Placed& placed : all)
    {
        const auto meets = [&placed](const Row& row) {
            return std::any_of(row.begin(), row.end(),
                               [&](const Placed& other) { return Meet(placed, other); });
        };
        // Behind the last row that it meets, so that no short line lies outside a long one.
        const auto last = std::find_if(rows.rbegin(), rows.rend(), meets);
        const std::size_t behind = rows.size() - static_cast<std::size_t>(last - rows.rbegin());
        if (behind == rows.size())
            rows.emplace_back();
        rows[behind].push_back(placed);
    }
    return rows;
}

/// A thin line from a point of the section to a bit beyond the dimension line.
void DrawExtension(app_Svg& svg, const Side& side, app_Point point, double offset)
{
    constexpr double gap = 3.0;
    constexpr double overrun = 4.0;
    const double position = side.Position(point);
    svg.Line(side.At(position, side.Offset(point) + gap), side.At(position, offset + overrun), thinPen);
}

void DrawRow(app_Svg& svg, const Side& side, app_Side which, const Row& row, double offset)
{
    for (const Placed& placed : row)
    {
        DrawExtension(svg, side, placed.line->from, offset);
        DrawExtension(svg, side, placed.line->to, offset);
        DrawArrowLine(svg, side.At(placed.low, offset), side.At(placed.high, offset));
        app_Point at = side.At(placed.textAt, offset + (side.IsLevel() ? 0.0 : gapOfText + 1.0));
        const bool isBesideLine = placed.anchor != app_Anchor::Middle;
        if (side.IsLevel() && !isBesideLine)
            at.y -= lettersSize * 0.75;
        const app_Anchor anchor = which == app_Side::Left ? app_Anchor::End : placed.anchor;
        svg.Text(at, placed.line->text, {lettersSize, anchor});
    }
}

double WidthOf(const Side& side, const Row& row)
{
    if (side.IsLevel())
        return rowHeight;
    double width = 0.0;
    for (const Placed& placed : row)
        width = std::max(width, app_TextWidth(placed.line->text, lettersSize));
    return width + gapOfText + gapOfLines;
}

} // namespace

void app_DrawDimensionLines(app_Svg& svg, const std::vector<app_DimensionLine>& lines)
{
    for (const app_DimensionLine& line : lines)
    {
        if (line.side == app_Side::Here && !(line.from == line.to))
            DrawHere(svg, line);
    }
    const app_Box inner = svg.Bounds();
    for (const app_Side which : {app_Side::Left, app_Side::Right, app_Side::Below, app_Side::Above})
    {
        const Side side(which, inner);
        double offset = gapToSection;
        for (const Row& row : RowsOf(side, which, lines))
        {
            DrawRow(svg, side, which, row, offset);
            offset += WidthOf(side, row);
        }
    }
}
