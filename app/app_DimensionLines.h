#pragma once

#include "app_Section.h"
#include "app_Svg.h"

/// A measure in a picture.
struct app_DimensionLine
{
    std::string text;
    app_Point from;
    app_Point to;
    app_Side side;
};

/// Draws dimension lines with arrows and texts: those between their own points at once, the others in rows
/// around what has been drawn, short ones first, so that no two of a side meet. A line of no length is left
/// out.
void app_DrawDimensionLines(app_Svg& svg, const std::vector<app_DimensionLine>& lines);
