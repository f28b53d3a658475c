#include "app_SectionPicture.h"

#include "app_DimensionLines.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

namespace
{

constexpr const char* wallColor = "#c9d8e8";
constexpr app_Pen rimPen{"#1d3f63", 1.5};
constexpr app_Pen noPen{"", 0.0};
constexpr app_Pen jumpPen{"#8a8a8a", 1.0, "4 3"};
constexpr app_Pen axisPen{"#b02a3a", 0.9, "10 3 2 3"};

void DrawParts(app_Svg& svg, const app_Section& section, const app_SectionFrame& frame)
{
    if (section.wallPoints.empty())
    {
        for (const app_Outline& part : section.parts)
            svg.Area(frame.At(part), wallColor, rimPen);
        return;
    }
    // Walls that overlap are to look like one piece: all rims first, then what lies between them.
    std::vector<app_Outline> pieces = section.parts;
    for (const app_Polygon& corner : section.corners)
        pieces.push_back({corner});
    for (const app_Pen& pen : {app_Pen{rimPen.color, 2.0 * rimPen.width}, noPen})
    {
        for (const app_Outline& piece : pieces)
            svg.Area(frame.At(piece), wallColor, pen);
    }
}

/// The axes of the section, through their origin.
void DrawOrigin(app_Svg& svg, app_Point origin)
{
    constexpr double reach = 22.0;
    svg.Line(origin - app_Point{reach, 0.0}, origin + app_Point{reach, 0.0}, axisPen);
    svg.Line(origin - app_Point{0.0, reach}, origin + app_Point{0.0, reach}, axisPen);
    svg.Dot(origin, 2.6, axisPen.color);
}

/// How far from a point its number stands: off the walls that meet there.
double DistanceOfNumber(const std::vector<app_WallPoint>& points, std::size_t i, double scale)
{
    constexpr double least = 12.0;
    const double before = i == 0 ? 0.0 : points[i].thickness;
    const double behind = i + 1 == points.size() ? 0.0 : points[i + 1].thickness;
    return least + std::max(before, behind) / 2.0 * scale;
}

/// The points of a section that is given by them, with their numbers where there is room.
void DrawWallPoints(app_Svg& svg, const app_Section& section, const app_SectionFrame& frame)
{
    constexpr app_Lettering lettering{11.0, app_Anchor::Middle, "#b02a3a"};
    const std::vector<app_WallPoint>& points = section.wallPoints;
    const app_Point middle = frame.At(section.Bounds().Middle());
    std::vector<app_Box> taken;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const app_Point at = frame.At(points[i].place);
        if (i > 0 && points[i].thickness == 0.0)
            svg.Line(frame.At(points[i - 1].place), at, jumpPen);
        svg.Dot(at, 2.2, lettering.color);
        const app_Point out = at - middle;
        const double length = app_Length(out);
        const double distance = DistanceOfNumber(points, i, frame.Scale());
        const app_Point place = at + (length > 0.0 ? out * (distance / length) : app_Point{distance, 0.0});
        const std::string number = std::to_string(i + 1);
        const app_Box box = app_TextBox(place, number, lettering);
        const auto meets = [&box](const app_Box& other)
        {
            return box.Min().x < other.Max().x && other.Min().x < box.Max().x &&
                   box.Min().y < other.Max().y && other.Min().y < box.Max().y;
        };
        if (std::any_of(taken.begin(), taken.end(), meets))
            continue;
        svg.Text(place, number, lettering);
        taken.push_back(box);
    }
}

/// The table of the points at the right of the picture.
void DrawWallTable(app_Svg& svg, const std::vector<app_WallPoint>& points)
{
    constexpr std::size_t mostRows = 30;
    constexpr double lineHeight = 17.0;
    constexpr double columnWidth = 84.0;
    constexpr app_Lettering heading{11.0, app_Anchor::End, "#666666"};
    constexpr app_Lettering cell{11.0, app_Anchor::End};
    const app_Point corner{svg.Bounds().Max().x + 60.0, svg.Bounds().Min().y + 8.0};
    const auto row =
        [&](std::size_t line, const std::vector<std::string>& cells, const app_Lettering& lettering)
    {
        for (std::size_t i = 0; i < cells.size(); ++i)
            svg.Text(corner + app_Point{columnWidth * static_cast<double>(i),
                                        lineHeight * static_cast<double>(line)},
                     cells[i], lettering);
    };
    row(0, {"point", "x", "y", "thickness"}, heading);
    const std::size_t shown = std::min(points.size(), mostRows);
    for (std::size_t i = 0; i < shown; ++i)
        row(i + 1,
            {std::to_string(i + 1), app_NumberText(points[i].place.x), app_NumberText(points[i].place.y),
             i == 0 ? "" : app_NumberText(points[i].thickness)},
            cell);
    if (shown < points.size())
        row(shown + 1, {"", "", "", fmt::format("and {} more", points.size() - shown)}, heading);
}

} // namespace

app_SectionFrame::app_SectionFrame(const app_Section& section)
{
    app_Box box = section.Bounds();
    if (section.origin)
        box.Add(*section.origin);
    for (const app_WallPoint& point : section.wallPoints)
        box.Add(point.place);
    scale = std::min(Width / box.Width(), Height / box.Height());
    corner = {box.Min().x, box.Max().y};
}

app_Point app_SectionFrame::At(app_Point inSection) const
{
    return {(inSection.x - corner.x) * scale, (corner.y - inSection.y) * scale};
}

app_Outline app_SectionFrame::At(const app_Outline& inSection) const
{
    app_Outline outline;
    for (const app_Loop& loop : inSection)
    {
        if (const auto* circle = std::get_if<app_Circle>(&loop))
        {
            outline.push_back(app_Circle{At(circle->center), circle->radius * scale});
            continue;
        }
        app_Polygon polygon;
        for (const app_Point& point : std::get<app_Polygon>(loop))
            polygon.push_back(At(point));
        outline.push_back(std::move(polygon));
    }
    return outline;
}

void app_DrawSection(app_Svg& svg, const app_Section& section)
{
    const app_SectionFrame frame(section);
    DrawParts(svg, section, frame);
    if (section.origin)
        DrawOrigin(svg, frame.At(*section.origin));
    DrawWallPoints(svg, section, frame);
    std::vector<app_DimensionLine> lines;
    for (const app_Measure& measure : section.measures)
        lines.push_back({measure.Text(), frame.At(measure.from), frame.At(measure.to), measure.side});
    app_DrawDimensionLines(svg, lines);
    if (!section.wallPoints.empty())
        DrawWallTable(svg, section.wallPoints);
}
