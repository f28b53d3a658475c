#include "app_AmplitudeChart.h"

#include "cmd_Attributes.h"
#include "kamC_TimeLabelMap.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <numbers>

namespace
{

using Chart = std::optional<app_Chart>;

constexpr double fullTurn = 2.0 * std::numbers::pi;
constexpr int samplesOfTurn = 40;

double Number(const cls_Value& object, const char* name)
{
    const cls_Value* const value = object.Find(name);
    return value ? cls_DoubleOfValue(*value) : 0.0;
}

const cls_Value::Array& Elements(const cls_Value& object, const char* name)
{
    static const cls_Value::Array none;
    const cls_Value* const value = object.Find(name);
    const cls_Value::Array* const elements = value ? value->AsArray() : nullptr;
    return elements ? *elements : none;
}

/// The text of an attribute in small letters.
std::string SmallText(const cls_Value& object, const char* name)
{
    const cls_Value* const value = object.Find(name);
    std::string text = value && value->AsText() ? *value->AsText() : "";
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string TimeName(const cls_Value& object)
{
    const bool isTotal = SmallText(object, "timeSpan") == "total";
    return kamC_TimeLabelMap::LabelString(isTotal ? kamC_TimeTotal : kamC_TimeStep, 0).CString();
}

/// A chart over time without its curve.
app_Chart OverTime(const cls_Value& object)
{
    app_Chart chart;
    chart.xName = TimeName(object);
    chart.yName = "amplitude";
    return chart;
}

/// Two columns of a table of numbers as a curve; none if the table is too narrow.
std::optional<app_Series> Columns(const cls_Value& object, const char* name, std::size_t x, std::size_t y)
{
    app_Series series;
    for (const cls_Value& row : Elements(object, name))
    {
        const cls_Value::Array* const cells = row.AsArray();
        if (!cells || cells->size() <= std::max(x, y))
            return std::nullopt;
        series.x.push_back(cls_DoubleOfValue((*cells)[x]));
        series.y.push_back(cls_DoubleOfValue((*cells)[y]));
    }
    return series;
}

Chart TimeTable(const cls_Value& object)
{
    std::optional<app_Series> series = Columns(object, "data", 0, 1);
    if (!series)
        return std::nullopt;
    app_Chart chart = OverTime(object);
    chart.series.push_back(std::move(*series));
    chart.hasPoints = true;
    return chart;
}

Chart EquallySpaced(const cls_Value& object)
{
    app_Series series;
    const double interval = Number(object, "fixedInterval");
    const double begin = Number(object, "begin");
    for (const cls_Value& value : Elements(object, "data"))
    {
        series.x.push_back(begin + interval * static_cast<double>(series.x.size()));
        series.y.push_back(cls_DoubleOfValue(value));
    }
    app_Chart chart = OverTime(object);
    chart.series.push_back(std::move(series));
    chart.hasPoints = true;
    return chart;
}

/// Samples a function of the time since `start`.
template <class Function>
Chart Sampled(const cls_Value& object, double span, int samples, Function function)
{
    const double start = Number(object, "start");
    if (!std::isfinite(start) || !std::isfinite(span) || !(span > 0.0))
        return std::nullopt;
    app_Series series;
    for (int i = 0; i <= samples; ++i)
    {
        const double elapsed = span * i / samples;
        series.x.push_back(start + elapsed);
        series.y.push_back(function(elapsed));
    }
    app_Chart chart = OverTime(object);
    chart.series.push_back(std::move(series));
    return chart;
}

Chart SmoothStep(const cls_Value& object)
{
    const Chart points = TimeTable(object);
    if (!points || points->series.front().x.size() < 2)
        return points;
    const app_Series& given = points->series.front();
    app_Series series;
    for (std::size_t i = 1; i < given.x.size(); ++i)
    {
        for (int k = 0; k <= samplesOfTurn; ++k)
        {
            const double part = static_cast<double>(k) / samplesOfTurn;
            const double rise = part * part * part * (10.0 - 15.0 * part + 6.0 * part * part);
            series.x.push_back(given.x[i - 1] + (given.x[i] - given.x[i - 1]) * part);
            series.y.push_back(given.y[i - 1] + (given.y[i] - given.y[i - 1]) * rise);
        }
    }
    app_Chart chart = OverTime(object);
    chart.series.push_back(std::move(series));
    return chart;
}

Chart Periodic(const cls_Value& object)
{
    const double frequency = Number(object, "frequency");
    const double constant = Number(object, "a_0");
    const std::optional<app_Series> terms = Columns(object, "data", 0, 1);
    if (!terms)
        return std::nullopt;
    // Enough for the fastest term, unless there are so many terms that the time to sum them counts.
    constexpr int periods = 2;
    constexpr std::size_t leastSamples = 400;
    constexpr std::size_t mostSummed = 4'000'000;
    const std::size_t count = std::max<std::size_t>(terms->x.size(), 1);
    const std::size_t samples =
        std::max(leastSamples, std::min<std::size_t>(periods * samplesOfTurn * count, mostSummed / count));
    return Sampled(object, periods * fullTurn / frequency, static_cast<int>(samples),
                   [&](double elapsed)
                   {
                       double sum = constant;
                       for (std::size_t n = 0; n < terms->x.size(); ++n)
                       {
                           const double angle = static_cast<double>(n + 1) * frequency * elapsed;
                           sum += terms->x[n] * std::cos(angle) + terms->y[n] * std::sin(angle);
                       }
                       return sum;
                   });
}

/// One turn of the slow oscillation, or what of it can be told apart if the fast one is very fast.
Chart Modulated(const cls_Value& object)
{
    constexpr double mostTurns = 100.0;
    constexpr double leastTurns = 10.0;
    const double initial = Number(object, "initial");
    const double magnitude = Number(object, "magnitude");
    const double first = Number(object, "frequency1");
    const double second = Number(object, "frequency2");
    const double fastTurn = fullTurn / std::max(first, second);
    const double span = std::min(fullTurn / std::min(first, second), mostTurns * fastTurn);
    if (!(span > 0.0) || !std::isfinite(span))
        return std::nullopt;
    const double turns = std::clamp(span / fastTurn, leastTurns, mostTurns);
    return Sampled(object, span, static_cast<int>(samplesOfTurn * turns),
                   [=](double elapsed)
                   { return initial + magnitude * std::sin(first * elapsed) * std::sin(second * elapsed); });
}

Chart Decay(const cls_Value& object)
{
    constexpr double decayTimes = 5.0;
    constexpr int samples = 400;
    const double initial = Number(object, "initial");
    const double maximum = Number(object, "maximum");
    const double decayTime = Number(object, "decayTime");
    return Sampled(object, decayTimes * decayTime, samples,
                   [=](double elapsed) { return initial + maximum * std::exp(-elapsed / decayTime); });
}

/// A chart over frequency of the columns of a table.
Chart OverFrequency(std::string yName, std::vector<app_Series> series)
{
    app_Chart chart{"frequency", std::move(yName), std::move(series), true};
    chart.mayBeLogarithmic = true;
    return chart;
}

/// The density's real part, and its imaginary part if it has one.
Chart Psd(const cls_Value& object)
{
    std::optional<app_Series> real = Columns(object, "table", 2, 0);
    std::optional<app_Series> imaginary = Columns(object, "table", 2, 1);
    if (!real || !imaginary)
        return std::nullopt;
    const bool isReal =
        std::all_of(imaginary->y.begin(), imaginary->y.end(), [](double y) { return y == 0.0; });
    const std::string type = SmallText(object, "type");
    std::vector<app_Series> series{std::move(*real)};
    if (!isReal)
    {
        series.front().name = "real part";
        imaginary->name = "imaginary part";
        series.push_back(std::move(*imaginary));
    }
    Chart chart =
        OverFrequency("power spectral density" + (type.empty() ? "" : " (" + type + ")"), std::move(series));
    if (type == "db")
        chart->xName = "frequency band";
    return chart;
}

/// Rows of value, frequency and damping, if there is damping: a curve for each.
Chart SpectrumTable(const cls_Value& object, const char* name, std::string yName)
{
    const cls_Value* const rows = object.Find(name);
    if (!rows || !Columns(object, name, 1, 0))
        return std::nullopt;
    const bool isDamped = Columns(object, name, 1, 2).has_value();
    const app_ChartColumns columns =
        isDamped ? app_ChartColumns{1, 0, {2}, {"damping"}} : app_ChartColumns{1, 0, {}, {}};
    return OverFrequency(std::move(yName), app_SeriesOfRows(*rows, columns));
}

Chart Spectrum(const cls_Value& object)
{
    return SpectrumTable(object, "table", SmallText(object, "type"));
}

Chart SpectrumAmplitude(const cls_Value& object)
{
    const std::string units = SmallText(object, "specificationUnits");
    return SpectrumTable(object, "data", units == "gravity" ? "acceleration in g" : units);
}

struct Drawn
{
    const char* className;
    Chart (*chart)(const cls_Value&);
};

constexpr Drawn drawn[] = {{"kamC_Tabular", TimeTable},
                           {"kamC_SmoothStep", SmoothStep},
                           {"kamC_EquallySpaced", EquallySpaced},
                           {"kamC_Periodic", Periodic},
                           {"kamC_Modulated", Modulated},
                           {"kamC_Decay", Decay},
                           {"kamC_PsdDefinition", Psd},
                           {"kamC_Spectrum", Spectrum},
                           {"kamC_SpectrumAmplitude", SpectrumAmplitude}};

} // namespace

std::optional<app_Chart> app_ChartOfAmplitude(const cls_Value& object)
{
    const cls_Value* const className = object.Find("class");
    if (!className || !className->AsText())
        return std::nullopt;
    for (const Drawn& row : drawn)
    {
        if (*className->AsText() == row.className)
            return row.chart(object);
    }
    return std::nullopt;
}
