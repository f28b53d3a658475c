#pragma once

#include "gsl_Point.h"
#include "ovr_Export.h"

/// A difference of two points, in the model's length unit.
struct gsl_Vector
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    /// Length of the vector: infinite if a component is, else NaN if a component is one.
    OVR_EXPORT double ComputeMagnitude() const;

    friend bool operator==(const gsl_Vector&, const gsl_Vector&) = default;
};

/// The way from `from` to `to`.
inline gsl_Vector operator-(const gsl_Point& to, const gsl_Point& from)
{
    return {to.x - from.x, to.y - from.y, to.z - from.z};
}

/// Below this a length counts as zero, in the model's length unit.
OVR_EXPORT double gsl_ZeroTolerance();
