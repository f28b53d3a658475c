#include "omi_gettimecounter.h"

#include <chrono>
#include <cmath>
#include <limits>

double omi_gettimecounter()
{
    static double last = 0.0;
    const std::chrono::duration<double> now = std::chrono::steady_clock::now().time_since_epoch();
    const double next = std::nextafter(last, std::numeric_limits<double>::infinity());
    last = now.count() > next ? now.count() : next;
    return last;
}
