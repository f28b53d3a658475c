#include "gsl_Vector.h"

#include <cmath>

double gsl_Vector::ComputeMagnitude() const
{
    return std::hypot(x, y, z);
}

double gsl_ZeroTolerance()
{
    return 1e-6;
}
