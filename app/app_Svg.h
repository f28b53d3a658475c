#pragma once

#include "app_Outline.h"

#include <string>
#include <vector>

enum class app_Anchor
{
    Start,
    Middle,
    End
};

/// How a line is drawn.
struct app_Pen
{
    const char* color = "#222222";
    double width = 1.0;
    const char* dashes = ""; ///< Lengths of dashes and gaps, separated by blanks; empty for a whole line.
};

/// How a text is written.
struct app_Lettering
{
    double size = 12.0;
    app_Anchor anchor = app_Anchor::Start;
    const char* color = "#222222";
    bool isBold = false;
    bool isUpward = false; ///< Runs from below to above.
};

/// A picture of lines, areas and texts, in the order in which they are drawn. It has no size of its own: its
/// document is as large as what is in it, and a margin.
class app_Svg
{
public:
    void Line(app_Point from, app_Point to, const app_Pen& pen);
    void Polyline(const std::vector<app_Point>& points, const app_Pen& pen);
    /// An area with its holes; a pen of no width leaves out the rim.
    void Area(const app_Outline& outline, const char* fill, const app_Pen& pen);
    void Dot(app_Point center, double radius, const char* color);
    /// One line of text; `at` is where its middle line begins, has its middle, or ends.
    void Text(app_Point at, const std::string& text, const app_Lettering& lettering = {});

    /// A heading in bold and a line below it, over all that is there so far; both are cut if they are very
    /// long.
    void Heading(const std::string& title, const std::string& below);

    /// What has been drawn so far lies in this box, texts by estimate.
    const app_Box& Bounds() const { return bounds; }

    /// The document, whose name for readers of screens is `title`.
    std::string Document(const std::string& title) const;

private:
    void Reach(app_Point point, double around);

    std::string body;
    app_Box bounds;
};

/// The width that a text takes in generic letters without serifs, rather too wide than too narrow.
double app_TextWidth(const std::string& text, double size);

/// The box that a text takes.
app_Box app_TextBox(app_Point at, const std::string& text, const app_Lettering& lettering);

/// A text as it stands in XML; what is no character there is replaced by U+FFFD.
std::string app_XmlText(const std::string& text);

/// A number for people: at most nine digits, and 2.5e6 instead of 2.5e+06.
std::string app_NumberText(double number, int digits = 9);
