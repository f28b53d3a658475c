#include "app_Outline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

double app_Length(app_Point point)
{
    return std::hypot(point.x, point.y);
}

void app_Box::Add(app_Point point)
{
    min = isEmpty ? point : app_Point{std::min(min.x, point.x), std::min(min.y, point.y)};
    max = isEmpty ? point : app_Point{std::max(max.x, point.x), std::max(max.y, point.y)};
    isEmpty = false;
}

void app_Box::Add(const app_Box& other)
{
    if (other.isEmpty)
        return;
    Add(other.min);
    Add(other.max);
}

namespace
{

double AreaOf(const app_Polygon& polygon)
{
    double doubled = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i)
    {
        const app_Point& a = polygon[i];
        const app_Point& b = polygon[(i + 1) % polygon.size()];
        doubled += a.x * b.y - b.x * a.y;
    }
    return std::abs(doubled) / 2.0;
}

double AreaOf(const app_Circle& circle)
{
    return std::numbers::pi * circle.radius * circle.radius;
}

void AddTo(app_Box& box, const app_Polygon& polygon)
{
    for (const app_Point& point : polygon)
        box.Add(point);
}

void AddTo(app_Box& box, const app_Circle& circle)
{
    const app_Point reach{circle.radius, circle.radius};
    box.Add(circle.center - reach);
    box.Add(circle.center + reach);
}

} // namespace

double app_AreaOf(const app_Outline& outline)
{
    double area = 0.0;
    for (const app_Loop& loop : outline)
    {
        const double inside = std::visit([](const auto& shape) { return AreaOf(shape); }, loop);
        area += &loop == &outline.front() ? inside : -inside;
    }
    return area;
}

app_Box app_BoundsOf(const app_Outline& outline)
{
    app_Box box;
    for (const app_Loop& loop : outline)
        std::visit([&box](const auto& shape) { AddTo(box, shape); }, loop);
    return box;
}
