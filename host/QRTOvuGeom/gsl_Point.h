#pragma once

/// A place in the model's space, in the model's length unit.
struct gsl_Point
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    friend bool operator==(const gsl_Point&, const gsl_Point&) = default;
};
