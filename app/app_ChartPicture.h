#pragma once

#include "app_Axis.h"
#include "app_Chart.h"
#include "app_Svg.h"

/// The axes of a chart, and where its points lie in the picture.
class app_ChartFrame
{
public:
    /// The chart has a point, and only points that `app_Axis` can place.
    explicit app_ChartFrame(const app_Chart& chart);

    static constexpr double Width = 640.0;
    static constexpr double Height = 360.0;

    const app_Axis& X() const { return x; }

    const app_Axis& Y() const { return y; }

    /// The place of a point: (0, `Height`) at the first ticks of both axes, (`Width`, 0) at the last.
    app_Point At(double xNumber, double yNumber) const;

private:
    app_Axis x;
    app_Axis y;
};

/// Draws a chart with its axes, and a legend if its curves have names. The chart fits `app_ChartFrame`.
void app_DrawChart(app_Svg& svg, const app_Chart& chart);
