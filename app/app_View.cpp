#include "app_View.h"

#include "app_AmplitudeChart.h"
#include "kamC_TypeLabelMap.h"

#include <cstring>

namespace
{

struct View
{
    const char* className;
    kamC_TypeLabelEnm label;
};

constexpr View views[] = {{"kamC_Tabular", kamC_TypeTabular},
                          {"kamC_SmoothStep", kamC_TypeSmoothStep},
                          {"kamC_EquallySpaced", kamC_TypeEquallySpaced},
                          {"kamC_Periodic", kamC_TypePeriodic},
                          {"kamC_Modulated", kamC_TypeModulated},
                          {"kamC_Decay", kamC_TypeDecay},
                          {"kamC_SolutionDependent", kamC_TypeSolutionDependent},
                          {"kamC_PsdDefinition", kamC_TypePsdDefinition},
                          {"kamC_Spectrum", kamC_TypeSpectrum},
                          {"kamC_SpectrumAmplitude", kamC_TypeSpectrum},
                          {"kamC_ActuatorAmplitude", kamC_TypeActuator},
                          {"kamC_UserAmplitude", kamC_TypeUser}};

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
    const std::optional<app_Chart> chart = app_ChartOfAmplitude(object);
    if (!chart || chart->series.empty())
        return std::nullopt;
    const app_Series& first = chart->series.front();
    return app_Curve{first.x, first.y, chart->xName};
}
