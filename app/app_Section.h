#pragma once

#include "app_Outline.h"
#include "cls_Value.h"

#include <optional>
#include <string>

/// Where the line of a measure lies.
enum class app_Side
{
    Left,  ///< Beside the section; the measure is the upright distance of its two points.
    Right, ///< The same on the other side.
    Below, ///< Under the section; the measure is the level distance of its two points.
    Above, ///< The same over it.
    Here   ///< Between the two points themselves.
};

/// A dimension of a section: an attribute and the two points whose distance it is.
struct app_Measure
{
    std::string name;
    double value;
    app_Point from;
    app_Point to;
    app_Side side;

    /// As it is written in the picture: "t3 = 7.1".
    std::string Text() const;
};

/// A point of a section that is given by its points, and the thickness of the wall that ends there.
struct app_WallPoint
{
    app_Point place;
    double thickness;
};

/// The shape of a beam profile to scale, in the profile's own units.
struct app_Section
{
    std::vector<app_Outline> parts;
    std::vector<app_Polygon> corners; ///< What closes the corners between walls that are parts.
    std::vector<app_Measure> measures;
    std::optional<app_Point> origin;       ///< Of the section's axes, where attributes give it.
    std::vector<app_WallPoint> wallPoints; ///< Of a section given by its points.

    app_Box Bounds() const;
};

/// Whether a value is a beam profile.
bool app_IsProfile(const cls_Value& object);

/// The section of a beam profile. Throws `app_Error` if it has no shape, or one that cannot be drawn to its
/// dimensions.
app_Section app_SectionOf(const cls_Value& profile);
