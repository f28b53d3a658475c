#include "app_Section.h"

#include "app_Error.h"
#include "app_Svg.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string_view>

#include <fmt/format.h>

namespace
{

using enum app_Side;

/// Reads the dimensions of a profile.
class Dimensions
{
public:
    explicit Dimensions(const cls_Value& profile) : profile(profile) {}

    /// Any finite number.
    double Number(const char* name) const
    {
        const cls_Value* const value = profile.Find(name);
        const double number = value ? cls_DoubleOfValue(*value) : 0.0;
        Require(IsLength(number), fmt::format("its {} is {}, which is no length that can be drawn", name,
                                              app_NumberText(number)));
        return number;
    }

    /// A number that must be greater than 0.
    double Positive(const char* name) const
    {
        const double number = Number(name);
        Require(number > 0.0,
                fmt::format("its {} is {}, expected a number greater than 0", name, app_NumberText(number)));
        return number;
    }

    bool IsTrue(const char* name) const
    {
        const cls_Value* const value = profile.Find(name);
        return value && value->AsBool() && *value->AsBool();
    }

    const cls_Value::Array& Rows(const char* name) const { return cls_ArrayOfValue(*profile.Find(name)); }

    static void Require(bool condition, const std::string& message)
    {
        if (!condition)
            throw app_Error(message);
    }

    /// Whether a number can be drawn as a length: squares of lengths are to be finite, and not zero.
    static bool IsLength(double number)
    {
        constexpr double largest = 1e150;
        return number == 0.0 || (std::abs(number) <= largest && std::abs(number) >= 1.0 / largest);
    }

private:
    const cls_Value& profile;
};

/// The polygon without corners that stand twice, as flanges without a width leave them.
app_Polygon Cleaned(const app_Polygon& polygon)
{
    app_Polygon clean;
    for (const app_Point& point : polygon)
    {
        if (clean.empty() || !(clean.back() == point))
            clean.push_back(point);
    }
    return clean;
}

/// The right half of a shape from below to above, and its mirror image.
app_Polygon Mirrored(const app_Polygon& rightHalf)
{
    app_Polygon whole = rightHalf;
    for (auto point = rightHalf.rbegin(); point != rightHalf.rend(); ++point)
        whole.push_back({-point->x, point->y});
    return Cleaned(whole);
}

app_Polygon Rectangle(app_Point low, app_Point high)
{
    return {low, {high.x, low.y}, high, {low.x, high.y}};
}

app_Polygon Hexagon(double radius)
{
    app_Polygon corners;
    for (int i = 0; i < 6; ++i)
        corners.push_back(
            {radius * std::cos(i * std::numbers::pi / 3.0), radius * std::sin(i * std::numbers::pi / 3.0)});
    return corners;
}

/// A height between two others at which the mark of the origin does not stand in the way.
double HeightBesideOrigin(double low, double high, double origin)
{
    const double above = low + 0.7 * (high - low);
    const double below = low + 0.3 * (high - low);
    return std::abs(above - origin) < std::abs(below - origin) ? below : above;
}

app_Section Rectangular(const Dimensions& of)
{
    const double a = of.Positive("a");
    const double b = of.Positive("b");
    app_Section section;
    section.parts = {{Rectangle({0.0, 0.0}, {a, b})}};
    section.measures = {{"a", a, {0.0, 0.0}, {a, 0.0}, Below}, {"b", b, {0.0, 0.0}, {0.0, b}, Left}};
    return section;
}

app_Section Circular(const Dimensions& of)
{
    const double r = of.Positive("r");
    app_Section section;
    section.parts = {{app_Circle{{}, r}}};
    section.measures = {{"r", r, {0.0, 0.0}, {r, 0.0}, Below}};
    return section;
}

app_Section Pipe(const Dimensions& of)
{
    const double r = of.Positive("r");
    const double t = of.Positive("t");
    of.Require(t < r, "its t is no less than r, so that it has no hole");
    app_Section section;
    section.parts = {{app_Circle{{}, r}, app_Circle{{}, r - t}}};
    section.measures = {{"r", r, {0.0, 0.0}, {r, 0.0}, Below}, {"t", t, {r - t, 0.0}, {r, 0.0}, Here}};
    return section;
}

app_Section Hexagonal(const Dimensions& of)
{
    const double r = of.Positive("r");
    const double t = of.Positive("t");
    const double inscribed = r * std::numbers::sqrt3 / 2.0;
    of.Require(t < inscribed, "its t is no less than sqrt(3)/2 times r, so that it has no hole");
    app_Section section;
    section.parts = {{Hexagon(r), Hexagon(r - 2.0 * t / std::numbers::sqrt3)}};
    section.measures = {{"r", r, {0.0, 0.0}, {r, 0.0}, Below},
                        {"t", t, {0.0, inscribed - t}, {0.0, inscribed}, Here}};
    return section;
}

/// The walls of a box in turn, against the clock: right, top, left, bottom.
app_Section Box(const Dimensions& of)
{
    const double a = of.Positive("a");
    const double b = of.Positive("b");
    const bool isUniform = of.IsTrue("uniformThickness");
    const double t1 = of.Positive("t1");
    const double t2 = isUniform ? t1 : of.Positive("t2");
    const double t3 = isUniform ? t1 : of.Positive("t3");
    const double t4 = isUniform ? t1 : of.Positive("t4");
    of.Require(t1 + t3 < a && t2 + t4 < b, "its walls leave no room between them");
    app_Section section;
    section.parts = {{Rectangle({0.0, 0.0}, {a, b}), Rectangle({t3, t4}, {a - t1, b - t2})}};
    section.measures = {{"a", a, {0.0, 0.0}, {a, 0.0}, Below},
                        {"b", b, {0.0, 0.0}, {0.0, b}, Left},
                        {"t1", t1, {a - t1, b}, {a, b}, Above}};
    if (isUniform)
        return section;
    section.measures.push_back({"t2", t2, {a, b - t2}, {a, b}, Right});
    section.measures.push_back({"t3", t3, {0.0, b}, {t3, b}, Above});
    section.measures.push_back({"t4", t4, {a, 0.0}, {a, t4}, Right});
    return section;
}

/// A flange of a section with a web: none if its width is not positive.
struct Flange
{
    bool isThere;
    double width; ///< That of the web for a flange that is not there.
    double thickness;

    Flange(const Dimensions& of, const char* widthName, const char* thicknessName, double web)
        : isThere(of.Number(widthName) > 0.0),
          width(isThere ? of.Number(widthName) : web),
          thickness(isThere ? of.Positive(thicknessName) : 0.0)
    {}
};

/// What sections with a lower flange 1, an upper flange 2 and a web 3 have in common.
struct Flanges
{
    double height;
    double web;
    Flange lower;
    Flange upper;

    explicit Flanges(const Dimensions& of)
        : height(of.Positive("h")),
          web(of.Positive("t3")),
          lower(of, "b1", "t1", web),
          upper(of, "b2", "t2", web)
    {
        of.Require(lower.isThere || upper.isThere, "neither its b1 nor its b2 is greater than 0");
        of.Require(lower.thickness + upper.thickness < height, "its flanges are thicker than it is high");
    }

    /// The right rim from below to above.
    app_Polygon RightRim(double webRight, double lowerRight, double upperRight) const
    {
        const double upperBottom = height - upper.thickness;
        return {{lowerRight, 0.0},       {lowerRight, lower.thickness}, {webRight, lower.thickness},
                {webRight, upperBottom}, {upperRight, upperBottom},     {upperRight, height}};
    }

    /// The measures of the flanges from `left` to `right`, and of the web.
    void Measure(app_Section& section, double lowerLeft, double upperLeft, double webLeft) const
    {
        const double origin = section.origin->y;
        const double middle = HeightBesideOrigin(lower.thickness, height - upper.thickness, origin);
        const double lowerRight = lowerLeft + lower.width;
        const double upperRight = upperLeft + upper.width;
        section.measures = {{"h", height, {lowerLeft, 0.0}, {upperLeft, height}, Left},
                            {"l", origin, {lowerLeft, 0.0}, *section.origin, Left},
                            {"t3", web, {webLeft, middle}, {webLeft + web, middle}, Here}};
        if (lower.isThere)
        {
            section.measures.push_back({"b1", lower.width, {lowerLeft, 0.0}, {lowerRight, 0.0}, Below});
            section.measures.push_back(
                {"t1", lower.thickness, {lowerRight, 0.0}, {lowerRight, lower.thickness}, Right});
        }
        if (!upper.isThere)
            return;
        section.measures.push_back({"b2", upper.width, {upperLeft, height}, {upperRight, height}, Above});
        section.measures.push_back(
            {"t2", upper.thickness, {upperRight, height - upper.thickness}, {upperRight, height}, Right});
    }
};

app_Section Ibeam(const Dimensions& of)
{
    const Flanges flanges(of);
    const double lowerHalf = flanges.lower.width / 2.0;
    const double upperHalf = flanges.upper.width / 2.0;
    const double webHalf = flanges.web / 2.0;
    app_Section section;
    section.parts = {{Mirrored(flanges.RightRim(webHalf, lowerHalf, upperHalf))}};
    section.origin = {0.0, of.Number("l")};
    flanges.Measure(section, -lowerHalf, -upperHalf, -webHalf);
    return section;
}

/// The web at the left, the flanges from its outer face to the right.
app_Section Channel(const Dimensions& of)
{
    const Flanges flanges(of);
    app_Polygon rim = flanges.RightRim(flanges.web, flanges.lower.width, flanges.upper.width);
    rim.push_back({0.0, flanges.height});
    rim.push_back({0.0, 0.0});
    app_Section section;
    section.parts = {{Cleaned(rim)}};
    section.origin = {of.Number("o"), of.Number("l")};
    flanges.Measure(section, 0.0, 0.0, 0.0);
    section.measures.push_back({"o", section.origin->x, {0.0, 0.0}, *section.origin, Below});
    return section;
}

/// The crown, flange 1, above; the brims, each a flange 2, below; two webs between, which lean if the brims
/// leave more or less room between them than the crown is wide.
app_Section Hat(const Dimensions& of)
{
    const double h = of.Positive("h");
    const double b = of.Positive("b");
    const double b1 = of.Positive("b1");
    const double t1 = of.Positive("t1");
    const double t3 = of.Positive("t3");
    const Flange brim(of, "b2", "t2", 0.0);
    const double foot = b / 2.0 - (brim.isThere ? brim.width : 0.0);
    of.Require(foot > 0.0, "its brims, each as wide as b2, leave no room within the width over all, b");
    of.Require(t1 + brim.thickness < h, "its flanges are thicker than it is high");
    const double lean = (b1 / 2.0 - foot) / h;
    const double wall = t3 * std::hypot(1.0, lean);
    const auto outer = [&](double y) { return foot + lean * y; };
    const auto inner = [&](double y) { return outer(y) - wall; };
    of.Require(inner(0.0) > 0.0 && inner(h - t1) > 0.0, "its webs leave no room between them");
    app_Section section;
    section.parts = {{Mirrored({{inner(h - t1), h - t1},
                                {inner(0.0), 0.0},
                                {b / 2.0, 0.0},
                                {b / 2.0, brim.thickness},
                                {outer(brim.thickness), brim.thickness},
                                {b1 / 2.0, h}})}};
    section.origin = {0.0, of.Number("l")};
    const app_Point face{outer(h / 2.0), h / 2.0};
    const app_Point through = app_Point{1.0, -lean} * (t3 / std::hypot(1.0, lean));
    section.measures = {{"h", h, {-b / 2.0, 0.0}, {-b1 / 2.0, h}, Left},
                        {"l", section.origin->y, {-b / 2.0, 0.0}, *section.origin, Left},
                        {"b", b, {-b / 2.0, 0.0}, {b / 2.0, 0.0}, Below},
                        {"b1", b1, {-b1 / 2.0, h}, {b1 / 2.0, h}, Above},
                        {"t1", t1, {b1 / 2.0, h - t1}, {b1 / 2.0, h}, Right},
                        {"t3", t3, face - through, face, Here}};
    if (!brim.isThere)
        return section;
    section.measures.push_back({"b2", brim.width, {foot, 0.0}, {b / 2.0, 0.0}, Below});
    section.measures.push_back({"t2", brim.thickness, {b / 2.0, 0.0}, {b / 2.0, brim.thickness}, Right});
    return section;
}

/// The level leg below, the upright one at the left.
app_Section Lbeam(const Dimensions& of)
{
    const double a = of.Positive("a");
    const double b = of.Positive("b");
    const double t1 = of.Positive("t1");
    const double t2 = of.Positive("t2");
    of.Require(t1 < b, "its t1 is no less than b");
    of.Require(t2 < a, "its t2 is no less than a");
    app_Section section;
    section.parts = {{app_Polygon{{0.0, 0.0}, {a, 0.0}, {a, t1}, {t2, t1}, {t2, b}, {0.0, b}}}};
    section.measures = {{"a", a, {0.0, 0.0}, {a, 0.0}, Below},
                        {"b", b, {0.0, 0.0}, {0.0, b}, Left},
                        {"t1", t1, {a, 0.0}, {a, t1}, Right},
                        {"t2", t2, {0.0, b}, {t2, b}, Above}};
    return section;
}

app_Section Tbeam(const Dimensions& of)
{
    const double b = of.Positive("b");
    const double h = of.Positive("h");
    const double tf = of.Positive("tf");
    const double tw = of.Positive("tw");
    of.Require(tf < h, "its tf is no less than h");
    of.Require(tw < b, "its tw is no less than b");
    app_Section section;
    section.parts = {{Mirrored({{tw / 2.0, 0.0}, {tw / 2.0, h - tf}, {b / 2.0, h - tf}, {b / 2.0, h}})}};
    section.origin = {0.0, of.Number("l")};
    const double middle = HeightBesideOrigin(0.0, h - tf, section.origin->y);
    section.measures = {{"b", b, {-b / 2.0, h}, {b / 2.0, h}, Above},
                        {"h", h, {-tw / 2.0, 0.0}, {-b / 2.0, h}, Left},
                        {"l", section.origin->y, {-tw / 2.0, 0.0}, *section.origin, Left},
                        {"tf", tf, {b / 2.0, h - tf}, {b / 2.0, h}, Right},
                        {"tw", tw, {-tw / 2.0, middle}, {tw / 2.0, middle}, Here}};
    return section;
}

app_Section Trapezoidal(const Dimensions& of)
{
    const double a = of.Positive("a");
    const double b = of.Positive("b");
    const double c = of.Positive("c");
    app_Section section;
    section.parts = {{Mirrored({{a / 2.0, 0.0}, {c / 2.0, b}})}};
    section.origin = {0.0, of.Number("d")};
    section.measures = {{"a", a, {-a / 2.0, 0.0}, {a / 2.0, 0.0}, Below},
                        {"b", b, {-a / 2.0, 0.0}, {-c / 2.0, b}, Left},
                        {"c", c, {-c / 2.0, b}, {c / 2.0, b}, Above},
                        {"d", section.origin->y, {-a / 2.0, 0.0}, *section.origin, Left}};
    return section;
}

double Dot(app_Point a, app_Point b)
{
    return a.x * b.x + a.y * b.y;
}

app_Point Unit(app_Point point)
{
    return point * (1.0 / app_Length(point));
}

/// A wall of a section given by its points, its thickness to both sides of the line between two of them.
app_Polygon Wall(app_Point from, app_Point to, double thickness)
{
    const app_Point along = Unit(to - from);
    const app_Point across = app_Point{-along.y, along.x} * (thickness / 2.0);
    return {from - across, to - across, to + across, from + across};
}

/// What lies outside of both walls where they meet in a corner: up to where their outer faces meet, or, at a
/// sharp corner, cut off; none where they run straight on.
std::optional<app_Polygon> Corner(app_Point from, const app_WallPoint& at, const app_WallPoint& to)
{
    constexpr double straight = 1e-6;
    constexpr double longest = 2.0;
    const app_Point in = Unit(at.place - from);
    const app_Point out = Unit(to.place - at.place);
    const double turn = in.x * out.y - in.y * out.x;
    if (std::abs(turn) < straight)
        return std::nullopt;
    const double side = turn > 0.0 ? -0.5 : 0.5;
    const app_Point acrossOut{-out.y, out.x};
    const app_Point a = at.place + app_Point{-in.y, in.x} * (side * at.thickness);
    const app_Point b = at.place + acrossOut * (side * to.thickness);
    const double reach = Dot(a - b, acrossOut) / turn;
    if (reach < 0.0 || reach > longest * std::max(at.thickness, to.thickness))
        return app_Polygon{at.place, a, b};
    return app_Polygon{at.place, a, a + in * reach, b};
}

/// Whether there is a wall between a point and the one before it.
bool IsWall(const std::vector<app_WallPoint>& points, std::size_t i)
{
    return i > 0 && i < points.size() && points[i].thickness > 0.0 &&
           !(points[i].place == points[i - 1].place);
}

std::vector<app_WallPoint> WallPoints(const Dimensions& of)
{
    std::vector<app_WallPoint> points;
    for (const cls_Value& row : of.Rows("table"))
    {
        const cls_Value::Array& cells = cls_ArrayOfValue(row);
        of.Require(cells.size() >= 3,
                   fmt::format("row {} of its table has {} columns, expected x, y and thickness",
                               points.size() + 1, cells.size()));
        points.push_back(
            {{cls_DoubleOfValue(cells[0]), cls_DoubleOfValue(cells[1])}, cls_DoubleOfValue(cells[2])});
        const app_WallPoint& point = points.back();
        of.Require(points.size() == 1 || !(point.thickness < 0.0),
                   fmt::format("row {} of its table has the thickness {}, expected 0 or more", points.size(),
                               app_NumberText(point.thickness)));
        for (const double number : {point.place.x, point.place.y, point.thickness})
            of.Require(Dimensions::IsLength(number),
                       fmt::format("row {} of its table holds {}, which is no length that can be drawn",
                                   points.size(), app_NumberText(number)));
    }
    return points;
}

app_Section Arbitrary(const Dimensions& of)
{
    app_Section section;
    section.wallPoints = WallPoints(of);
    const std::vector<app_WallPoint>& points = section.wallPoints;
    for (std::size_t i = 1; i < points.size(); ++i)
    {
        if (!IsWall(points, i))
            continue;
        section.parts.push_back({Wall(points[i - 1].place, points[i].place, points[i].thickness)});
        if (!IsWall(points, i + 1))
            continue;
        if (auto corner = Corner(points[i - 1].place, points[i], points[i + 1]))
            section.corners.push_back(std::move(*corner));
    }
    of.Require(!section.parts.empty(), "its table has no two points with a wall between them");
    return section;
}

struct Shape
{
    std::string_view className;
    app_Section (*section)(const Dimensions&);
};

constexpr Shape shapes[] = {{"kbpC_ArbitraryProfile", Arbitrary},
                            {"kbpC_BoxProfile", Box},
                            {"kbpC_CbeamProfile", Channel},
                            {"kbpC_CircularProfile", Circular},
                            {"kbpC_GeneralizedProfile", nullptr},
                            {"kbpC_HatProfile", Hat},
                            {"kbpC_HexagonalProfile", Hexagonal},
                            {"kbpC_IbeamProfile", Ibeam},
                            {"kbpC_LbeamProfile", Lbeam},
                            {"kbpC_PipeProfile", Pipe},
                            {"kbpC_RectangularProfile", Rectangular},
                            {"kbpC_TbeamProfile", Tbeam},
                            {"kbpC_TrapezoidalProfile", Trapezoidal}};

const Shape* ShapeOf(const cls_Value& object)
{
    const cls_Value* const className = object.Find("class");
    if (!className || !className->AsText())
        return nullptr;
    for (const Shape& shape : shapes)
    {
        if (shape.className == *className->AsText())
            return &shape;
    }
    return nullptr;
}

} // namespace

std::string app_Measure::Text() const
{
    return name + " = " + app_NumberText(value);
}

app_Box app_Section::Bounds() const
{
    app_Box box;
    for (const app_Outline& part : parts)
        box.Add(app_BoundsOf(part));
    for (const app_Polygon& corner : corners)
        box.Add(app_BoundsOf({corner}));
    return box;
}

bool app_IsProfile(const cls_Value& object)
{
    return ShapeOf(object) != nullptr;
}

app_Section app_SectionOf(const cls_Value& profile)
{
    const Shape* const shape = ShapeOf(profile);
    if (!shape)
        throw app_Error("it is no beam profile");
    if (!shape->section)
        throw app_Error("a generalized profile has properties of a section but no shape");
    app_Section section = shape->section(Dimensions(profile));
    const app_Box box = section.Bounds();
    Dimensions::Require(std::isfinite(box.Width()) && std::isfinite(box.Height()) && box.Width() > 0.0 &&
                            box.Height() > 0.0,
                        "its dimensions differ too much to be drawn to scale");
    return section;
}
