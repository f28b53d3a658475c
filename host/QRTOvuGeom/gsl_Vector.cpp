#include "gsl_Vector.h"

#include <cmath>

double gsl_Vector::ComputeMagnitude() const
{
    // The three-argument form makes a NaN of an infinity.
    return std::hypot(std::hypot(x, y), z);
}

double gsl_ZeroTolerance()
{
    return 1e-6;
}
