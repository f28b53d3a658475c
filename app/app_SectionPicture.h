#pragma once

#include "app_Section.h"
#include "app_Svg.h"

/// Where a section lies in its picture: to one scale in both directions, upright.
class app_SectionFrame
{
public:
    explicit app_SectionFrame(const app_Section& section);

    /// The largest size of a section with its origin in a picture.
    static constexpr double Width = 460.0;
    static constexpr double Height = 380.0;

    /// Picture units for one unit of the section.
    double Scale() const { return scale; }

    app_Point At(app_Point inSection) const;
    app_Outline At(const app_Outline& inSection) const;

private:
    double scale;
    app_Point corner;
};

/// Draws a section with its dimensions.
void app_DrawSection(app_Svg& svg, const app_Section& section);
