#include "app_Picture.h"

#include "app_AmplitudeChart.h"
#include "app_ChartPicture.h"
#include "app_Error.h"
#include "app_MaterialChart.h"
#include "app_SectionPicture.h"
#include "app_View.h"
#include "cmd_Attributes.h"

#include <cmath>

#include <fmt/format.h>

namespace
{

constexpr const char* whatIsDrawn =
    "there are pictures of amplitudes that stand for a curve, of beam profiles with a "
    "shape, and of materials with a table of hardening or test data";

/// The chart of an object, with points that all have a place.
app_Chart ChartOf(const cls_Value& object, const std::string& label)
{
    std::optional<app_Chart> chart = app_ChartOfAmplitude(object);
    if (!chart)
        chart = app_ChartOfMaterial(object);
    if (!chart)
        throw app_Error(fmt::format("{} has no picture; {}", label, whatIsDrawn));
    if (chart->series.empty() || chart->series.front().x.empty())
        throw app_Error("its table has no rows, so that there is no curve to draw");
    for (const app_Series& series : chart->series)
    {
        for (std::size_t i = 0; i < series.x.size(); ++i)
        {
            for (const double number : {series.x[i], series.y[i]})
            {
                if (!(std::abs(number) <= app_Axis::Largest))
                    throw app_Error(
                        fmt::format("point {} of its curve has {}, which has no place in a picture", i + 1,
                                    app_NumberText(number)));
            }
        }
    }
    return std::move(*chart);
}

/// What stands below the name of the object.
std::string SubtitleOf(const cls_Value& object, const std::string& label)
{
    const cls_Value* const description = object.Find("description");
    const bool isDescribed = description && description->AsText() && !description->AsText()->empty();
    return isDescribed ? label + ": " + *description->AsText() : label;
}

std::string Drawn(const std::string& path, const cls_Value& object)
{
    const std::string label = app_LabelOf(*cmd_ClassOfValue(object));
    app_Svg svg;
    if (app_IsProfile(object))
        app_DrawSection(svg, app_SectionOf(object));
    else
        app_DrawChart(svg, ChartOf(object, label));
    svg.Heading(path, SubtitleOf(object, label));
    return svg.Document(path);
}

} // namespace

std::string app_PictureOf(const std::string& path, const cls_Value& object)
{
    try
    {
        return Drawn(path, object);
    }
    catch (const app_Error& error)
    {
        throw app_Error("show: " + path + ": " + error.what());
    }
}
