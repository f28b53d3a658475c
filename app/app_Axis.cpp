#include "app_Axis.h"

#include "app_Svg.h"

#include <algorithm>
#include <cmath>

namespace
{

// How far a number may miss a tick and still lie on it.
constexpr double slack = 1e-9;

/// The mantissas of round numbers.
constexpr int roundMantissas[] = {1, 2, 5, 10};

/// mantissa * 10 ^ exponent, as exactly as it can be.
double Decimal(double mantissa, int exponent)
{
    return exponent < 0 ? mantissa / std::pow(10.0, -exponent) : mantissa * std::pow(10.0, exponent);
}

int ExponentOf(double number)
{
    return static_cast<int>(std::floor(std::log10(number)));
}

struct Step
{
    int mantissa;
    int exponent;
};

/// The least round step that is no less than `least`.
Step RoundStep(double least)
{
    const int exponent = ExponentOf(least);
    for (const int mantissa : roundMantissas)
    {
        if (Decimal(mantissa, exponent) >= least * (1.0 - slack))
            return {mantissa, exponent};
    }
    return {1, exponent + 1};
}

} // namespace

app_Axis::app_Axis(double low, double high, Scale scale, int most) : scale(scale)
{
    if (scale == Scale::Linear)
        MakeLinear(low, high, most);
    else
        MakeLogarithmic(low, high, most);
}

void app_Axis::MakeLinear(double low, double high, int most)
{
    const double magnitude = std::max(std::abs(low), std::abs(high));
    if (high - low <= std::max(slack * magnitude, Smallest))
    {
        const double around = magnitude <= Smallest ? 1.0 : magnitude / 2.0;
        low -= around;
        high += around;
    }
    const Step step = RoundStep((high - low) / most);
    const double width = Decimal(step.mantissa, step.exponent);
    const double from = std::floor(low / width + slack);
    const double to = std::ceil(high / width - slack);
    for (double i = from; i <= to; i += 1.0)
        ticks.push_back(Decimal(i * step.mantissa, step.exponent));
    first = ticks.front();
    last = ticks.back();
    const double widest = std::max(std::abs(first), std::abs(last));
    digits = std::clamp(ExponentOf(widest) - step.exponent + 1, digits, 15);
}

void app_Axis::MakeLogarithmic(double low, double high, int most)
{
    // One decade more at each end: a logarithm may be off by the last bit.
    const int from = ExponentOf(low) - 1;
    const int to = ExponentOf(high) + 1;
    std::vector<double> candidates;
    for (int exponent = from; exponent <= to; ++exponent)
    {
        for (const int mantissa : {1, 2, 5})
            candidates.push_back(Decimal(mantissa, exponent));
    }
    const auto begin = std::find_if(candidates.rbegin(), candidates.rend(),
                                    [low](double tick) { return tick <= low * (1.0 + slack); });
    const auto end = std::find_if(candidates.begin(), candidates.end(),
                                  [high](double tick) { return tick >= high * (1.0 - slack); });
    const bool isOne = begin.base() - 1 == end;
    ticks.assign(begin.base() - 1, end + (isOne ? 2 : 1));
    first = ticks.front();
    last = ticks.back();
    if (static_cast<int>(ticks.size()) <= most)
        return;
    ticks.clear();
    const auto isWithin = [this](double tick)
    { return tick >= first * (1.0 - slack) && tick <= last * (1.0 + slack); };
    int exponent = ExponentOf(first);
    if (!isWithin(Decimal(1, exponent)))
        ++exponent;
    const int decades = ExponentOf(last) - exponent + 1;
    const int stride = std::max(1, (decades + most - 1) / most);
    for (; isWithin(Decimal(1, exponent)); exponent += stride)
        ticks.push_back(Decimal(1, exponent));
}

double app_Axis::Part(double number) const
{
    if (scale == Scale::Linear)
        return (number - first) / (last - first);
    return (std::log10(number) - std::log10(first)) / (std::log10(last) - std::log10(first));
}

std::string app_Axis::TickText(double tick) const
{
    return app_NumberText(tick, digits);
}
