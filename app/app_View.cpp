#include "app_View.h"

#include "cls_Unset.h"
#include "kamC_TypeLabelMap.h"

#include <cmath>
#include <cstring>
#include <numbers>

// What single classes look like; the only place of the program that knows classes by name.

namespace
{

constexpr int samples = 400;

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

/// Two columns of a table as a curve; none if the table is too narrow.
std::optional<app_Curve> Columns(const cls_Value& object, const char* name, std::size_t x, std::size_t y,
                                 const char* xName)
{
    app_Curve curve{{}, {}, xName};
    for (const cls_Value& row : Elements(object, name))
    {
        const cls_Value::Array* const cells = row.AsArray();
        if (!cells || cells->size() <= std::max(x, y))
            return std::nullopt;
        curve.x.push_back(cls_DoubleOfValue((*cells)[x]));
        curve.y.push_back(cls_DoubleOfValue((*cells)[y]));
    }
    return curve;
}

std::optional<app_Curve> TimeTable(const cls_Value& object)
{
    return Columns(object, "data", 0, 1, "time");
}

std::optional<app_Curve> EquallySpaced(const cls_Value& object)
{
    app_Curve curve{{}, {}, "time"};
    const double interval = Number(object, "fixedInterval");
    const double begin = Number(object, "begin");
    for (const cls_Value& value : Elements(object, "data"))
    {
        curve.x.push_back(begin + interval * static_cast<double>(curve.x.size()));
        curve.y.push_back(cls_DoubleOfValue(value));
    }
    return curve;
}

/// Samples a function of time; before `start` it keeps the value that it has there.
template <class Function>
std::optional<app_Curve> Sampled(double start, double span, Function function)
{
    if (!std::isfinite(start) || !std::isfinite(span) || !(span > 0.0))
        return std::nullopt;
    app_Curve curve{{}, {}, "time"};
    for (int i = 0; i <= samples; ++i)
    {
        const double elapsed = span * i / samples;
        curve.x.push_back(start + elapsed);
        curve.y.push_back(function(elapsed));
    }
    return curve;
}

std::optional<app_Curve> SmoothStep(const cls_Value& object)
{
    constexpr int samplesOfStep = 40;
    const std::optional<app_Curve> points = TimeTable(object);
    if (!points || points->x.size() < 2)
        return points;
    app_Curve curve{{}, {}, "time"};
    for (std::size_t i = 1; i < points->x.size(); ++i)
    {
        for (int k = 0; k <= samplesOfStep; ++k)
        {
            const double part = static_cast<double>(k) / samplesOfStep;
            const double rise = part * part * part * (10.0 - 15.0 * part + 6.0 * part * part);
            curve.x.push_back(points->x[i - 1] + (points->x[i] - points->x[i - 1]) * part);
            curve.y.push_back(points->y[i - 1] + (points->y[i] - points->y[i - 1]) * rise);
        }
    }
    return curve;
}

std::optional<app_Curve> Periodic(const cls_Value& object)
{
    const double frequency = Number(object, "frequency");
    const double constant = Number(object, "a_0");
    const std::optional<app_Curve> terms = Columns(object, "data", 0, 1, "time");
    if (!terms)
        return std::nullopt;
    constexpr double periods = 2.0;
    return Sampled(Number(object, "start"), periods * 2.0 * std::numbers::pi / frequency,
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

std::optional<app_Curve> Modulated(const cls_Value& object)
{
    const double slow = std::min(Number(object, "frequency1"), Number(object, "frequency2"));
    return Sampled(Number(object, "start"), 2.0 * std::numbers::pi / slow,
                   [&object](double elapsed)
                   {
                       return Number(object, "initial") +
                              Number(object, "magnitude") * std::sin(Number(object, "frequency1") * elapsed) *
                                  std::sin(Number(object, "frequency2") * elapsed);
                   });
}

std::optional<app_Curve> Decay(const cls_Value& object)
{
    constexpr double decayTimes = 5.0;
    const double decayTime = Number(object, "decayTime");
    return Sampled(
        Number(object, "start"), decayTimes * decayTime,
        [&object, decayTime](double elapsed)
        { return Number(object, "initial") + Number(object, "maximum") * std::exp(-elapsed / decayTime); });
}

std::optional<app_Curve> Psd(const cls_Value& object)
{
    return Columns(object, "table", 2, 0, "frequency");
}

std::optional<app_Curve> Spectrum(const cls_Value& object)
{
    return Columns(object, "table", 1, 0, "frequency");
}

std::optional<app_Curve> SpectrumAmplitude(const cls_Value& object)
{
    return Columns(object, "data", 1, 0, "frequency");
}

using CurveFunction = std::optional<app_Curve> (*)(const cls_Value&);

struct View
{
    const char* className;
    kamC_TypeLabelEnm label;
    CurveFunction curve;
};

constexpr View views[] = {{"kamC_Tabular", kamC_TypeTabular, TimeTable},
                          {"kamC_SmoothStep", kamC_TypeSmoothStep, SmoothStep},
                          {"kamC_EquallySpaced", kamC_TypeEquallySpaced, EquallySpaced},
                          {"kamC_Periodic", kamC_TypePeriodic, Periodic},
                          {"kamC_Modulated", kamC_TypeModulated, Modulated},
                          {"kamC_Decay", kamC_TypeDecay, Decay},
                          {"kamC_SolutionDependent", kamC_TypeSolutionDependent, nullptr},
                          {"kamC_PsdDefinition", kamC_TypePsdDefinition, Psd},
                          {"kamC_Spectrum", kamC_TypeSpectrum, Spectrum},
                          {"kamC_SpectrumAmplitude", kamC_TypeSpectrum, SpectrumAmplitude},
                          {"kamC_ActuatorAmplitude", kamC_TypeActuator, nullptr},
                          {"kamC_UserAmplitude", kamC_TypeUser, nullptr}};

const View* FindView(const char* className)
{
    for (const View& view : views)
    {
        if (std::strcmp(view.className, className) == 0)
            return &view;
    }
    return nullptr;
}

} // namespace

std::string app_LabelOf(const cls_Description& description)
{
    if (const View* view = FindView(description.Name()))
        return kamC_TypeLabelMap::LabelString(view->label, 0).CString();
    const char* const word = description.FindWord("constructor");
    return word ? word : description.Name();
}

std::optional<app_Curve> app_CurveOf(const cls_Value& object)
{
    const cls_Value* const className = object.Find("class");
    const View* const view = className ? FindView(className->AsText()->c_str()) : nullptr;
    if (!view || !view->curve)
        return std::nullopt;
    return view->curve(object);
}
