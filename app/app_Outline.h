#pragma once

#include <variant>
#include <vector>

/// A place, in a picture with y downward, in a section with y upward.
struct app_Point
{
    double x = 0.0;
    double y = 0.0;

    friend app_Point operator+(app_Point a, app_Point b) { return {a.x + b.x, a.y + b.y}; }
    friend app_Point operator-(app_Point a, app_Point b) { return {a.x - b.x, a.y - b.y}; }
    friend app_Point operator*(app_Point a, double factor) { return {a.x * factor, a.y * factor}; }
    friend bool operator==(app_Point, app_Point) = default;
};

/// Distance from the origin.
double app_Length(app_Point point);

/// The smallest upright rectangle around some places; around none until the first is added.
class app_Box
{
public:
    void Add(app_Point point);
    void Add(const app_Box& other);

    bool IsEmpty() const { return isEmpty; }

    app_Point Min() const { return min; }

    app_Point Max() const { return max; }

    app_Point Middle() const { return {min.x / 2.0 + max.x / 2.0, min.y / 2.0 + max.y / 2.0}; }

    double Width() const { return max.x - min.x; }

    double Height() const { return max.y - min.y; }

private:
    bool isEmpty = true;
    app_Point min;
    app_Point max;
};

/// Corners in order; the last is joined to the first.
using app_Polygon = std::vector<app_Point>;

struct app_Circle
{
    app_Point center;
    double radius = 0.0;
};

using app_Loop = std::variant<app_Polygon, app_Circle>;

/// An area: its rim, then the rims of its holes.
using app_Outline = std::vector<app_Loop>;

/// The area inside the rim and outside the holes.
double app_AreaOf(const app_Outline& outline);

app_Box app_BoundsOf(const app_Outline& outline);
