#pragma once

#include <string>
#include <vector>

/// An axis of a picture: a range of numbers that begins and ends at a tick, with ticks at round numbers.
class app_Axis
{
public:
    enum class Scale
    {
        Linear,
        Logarithmic
    };

    /// An axis that shows all from `low` to `high`, with about `most` ticks. The numbers are at most
    /// `Largest`, on a logarithmic axis at least `Smallest`.
    app_Axis(double low, double high, Scale scale, int most);

    /// Numbers beyond this one, of either sign, have no place on an axis.
    static constexpr double Largest = 1e300;
    /// Below this one, numbers have no full precision any more.
    static constexpr double Smallest = 1e-290;

    Scale Kind() const { return scale; }

    /// Where a number lies: 0 at the first tick, 1 at the last.
    double Part(double number) const;

    const std::vector<double>& Ticks() const { return ticks; }

    /// A tick as it is written at the axis, with as many digits as tell it from the next one.
    std::string TickText(double tick) const;

private:
    void MakeLinear(double low, double high, int most);
    void MakeLogarithmic(double low, double high, int most);

    Scale scale;
    double first = 0.0;
    double last = 1.0;
    int digits = 6;
    std::vector<double> ticks;
};
