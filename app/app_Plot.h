#pragma once

#include <string>
#include <vector>

/// Points of a curve, in the order in which they are joined.
struct app_Curve
{
    std::vector<double> x;
    std::vector<double> y;
    std::string xName; ///< What x is, as "time".
};

/// The curve without points that are not finite.
app_Curve app_FinitePoints(const app_Curve& curve);

/// Draws a curve with braille characters, with its axes, for people; empty for fewer than two points.
std::string app_Plot(const app_Curve& curve, std::size_t indent);

/// Draws a curve on one line of `width` block characters; empty for fewer than two points.
std::string app_Sparkline(const app_Curve& curve, std::size_t width);
