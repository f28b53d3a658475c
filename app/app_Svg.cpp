#include "app_Svg.h"

#include "cmd_Utf8.h"

#include <cmath>
#include <cstdint>

#include <fmt/format.h>

namespace
{

constexpr double margin = 16.0;
constexpr std::size_t longestHeading = 90;
constexpr const char* replacement = "\xEF\xBF\xBD";

/// A length in the picture; hundredths are finer than anyone sees.
std::string Length(double number)
{
    std::string text = fmt::format("{:.2f}", number);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text == "-0" ? "0" : text;
}

std::string PenText(const app_Pen& pen)
{
    if (pen.width <= 0.0)
        return " stroke=\"none\"";
    const std::string dashes = *pen.dashes ? fmt::format(" stroke-dasharray=\"{}\"", pen.dashes) : "";
    return fmt::format(" stroke=\"{}\" stroke-width=\"{}\"{}", pen.color, Length(pen.width), dashes);
}

std::string PathOf(const app_Polygon& polygon)
{
    std::string path;
    for (const app_Point& point : polygon)
        path += fmt::format("{}{} {}", path.empty() ? "M" : "L", Length(point.x), Length(point.y));
    return path + 'Z';
}

std::string PathOf(const app_Circle& circle)
{
    const std::string radius = Length(circle.radius);
    const std::string y = Length(circle.center.y);
    const std::string left = Length(circle.center.x - circle.radius);
    const std::string right = Length(circle.center.x + circle.radius);
    return fmt::format("M{1} {2}A{0} {0} 0 0 1 {3} {2}A{0} {0} 0 0 1 {1} {2}Z", radius, left, y, right);
}

const char* AnchorText(app_Anchor anchor)
{
    switch (anchor)
    {
    case app_Anchor::Start:
        return "start";
    case app_Anchor::Middle:
        return "middle";
    case app_Anchor::End:
        return "end";
    }
    return "start";
}

struct Character
{
    char32_t code;
    std::size_t length; ///< In bytes; 0 if there is no character of UTF-8.
};

Character CharacterAt(const std::string& text, std::size_t position)
{
    const auto first = static_cast<unsigned char>(text[position]);
    if (first < 0x80)
        return {first, 1};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || position + length > text.size())
        return {0, 0};
    char32_t code = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
    {
        if (cmd_IsCharacterStart(text, position + i))
            return {0, 0};
        code = code << 6 | (static_cast<unsigned char>(text[position + i]) & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return code < smallest[length] ? Character{0, 0} : Character{code, length};
}

/// Whether XML has the character, and gives it back as it is.
bool IsOfXml(char32_t code)
{
    if (code < 0x20)
        return code == '\t' || code == '\n';
    return code < 0xD800 || (code > 0xDFFF && code < 0xFFFE) || (code > 0xFFFF && code <= 0x10FFFF);
}

std::string Clipped(const std::string& text)
{
    if (text.size() <= longestHeading)
        return text;
    std::size_t end = longestHeading;
    while (!cmd_IsCharacterStart(text, end))
        --end;
    return text.substr(0, end) + " ...";
}

} // namespace

std::string app_XmlText(const std::string& text)
{
    std::string escaped;
    for (std::size_t i = 0; i < text.size();)
    {
        const Character character = CharacterAt(text, i);
        if (character.length == 0 || !IsOfXml(character.code))
            escaped += replacement;
        else if (character.code == '&')
            escaped += "&amp;";
        else if (character.code == '<')
            escaped += "&lt;";
        else if (character.code == '>')
            escaped += "&gt;";
        else if (character.code == '"')
            escaped += "&quot;";
        else
            escaped.append(text, i, character.length);
        i += std::max<std::size_t>(character.length, 1);
    }
    return escaped;
}

std::string app_NumberText(double number, int digits)
{
    std::string text = fmt::format("{:.{}g}", number, digits);
    const std::size_t exponent = text.find('e');
    if (exponent == std::string::npos)
        return text == "-0" ? "0" : text;
    const std::string sign = text[exponent + 1] == '-' ? "-" : "";
    const std::size_t begin = text.find_first_not_of('0', exponent + 2);
    return text.substr(0, exponent + 1) + sign + text.substr(begin);
}

double app_TextWidth(const std::string& text, double size)
{
    constexpr double ofLetter = 0.6;
    double width = 0.0;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (cmd_IsCharacterStart(text, i))
            width += static_cast<unsigned char>(text[i]) < 0x80 ? ofLetter : 1.0;
    }
    return width * size;
}

app_Box app_TextBox(app_Point at, const std::string& text, const app_Lettering& lettering)
{
    const double width = app_TextWidth(text, lettering.size);
    const double before = lettering.anchor == app_Anchor::Start    ? 0.0
                          : lettering.anchor == app_Anchor::Middle ? width / 2.0
                                                                   : width;
    const double half = lettering.size * 0.6;
    app_Box box;
    if (lettering.isUpward)
    {
        box.Add({at.x - half, at.y + before});
        box.Add({at.x + half, at.y + before - width});
        return box;
    }
    box.Add({at.x - before, at.y - half});
    box.Add({at.x - before + width, at.y + half});
    return box;
}

void app_Svg::Reach(app_Point point, double around)
{
    bounds.Add(point - app_Point{around, around});
    bounds.Add(point + app_Point{around, around});
}

void app_Svg::Line(app_Point from, app_Point to, const app_Pen& pen)
{
    body += fmt::format("<line x1=\"{}\" y1=\"{}\" x2=\"{}\" y2=\"{}\"{}/>\n", Length(from.x), Length(from.y),
                        Length(to.x), Length(to.y), PenText(pen));
    Reach(from, pen.width / 2.0);
    Reach(to, pen.width / 2.0);
}

void app_Svg::Polyline(const std::vector<app_Point>& points, const app_Pen& pen)
{
    std::string list;
    std::string last;
    for (const app_Point& point : points)
    {
        std::string place = Length(point.x) + ',' + Length(point.y);
        Reach(point, pen.width / 2.0);
        if (place == last)
            continue;
        list += (list.empty() ? "" : " ") + place;
        last = std::move(place);
    }
    body += fmt::format("<polyline points=\"{}\" fill=\"none\" stroke-linejoin=\"round\"{}/>\n", list,
                        PenText(pen));
}

void app_Svg::Area(const app_Outline& outline, const char* fill, const app_Pen& pen)
{
    std::string path;
    for (const app_Loop& loop : outline)
        path += std::visit([](const auto& shape) { return PathOf(shape); }, loop);
    body += fmt::format("<path d=\"{}\" fill=\"{}\" fill-rule=\"evenodd\"{}/>\n", path, fill, PenText(pen));
    bounds.Add(app_BoundsOf(outline));
}

void app_Svg::Dot(app_Point center, double radius, const char* color)
{
    body += fmt::format("<circle cx=\"{}\" cy=\"{}\" r=\"{}\" fill=\"{}\"/>\n", Length(center.x),
                        Length(center.y), Length(radius), color);
    Reach(center, radius);
}

void app_Svg::Text(app_Point at, const std::string& text, const app_Lettering& lettering)
{
    // Not every program knows where the middle of a line of letters is: the base line is given instead.
    const double drop = lettering.size * 0.35;
    const app_Point base = lettering.isUpward ? app_Point{at.x + drop, at.y} : app_Point{at.x, at.y + drop};
    const std::string turn =
        lettering.isUpward ? fmt::format(" transform=\"rotate(-90 {} {})\"", Length(base.x), Length(base.y))
                           : "";
    body += fmt::format(
        "<text x=\"{}\" y=\"{}\" font-size=\"{}\" text-anchor=\"{}\" fill=\"{}\"{}{}>{}</text>\n",
        Length(base.x), Length(base.y), Length(lettering.size), AnchorText(lettering.anchor), lettering.color,
        lettering.isBold ? " font-weight=\"bold\"" : "", turn, app_XmlText(text));
    bounds.Add(app_TextBox(at, text, lettering));
}

void app_Svg::Heading(const std::string& title, const std::string& below)
{
    constexpr app_Lettering bold{15.0, app_Anchor::Start, "#222222", true, false};
    constexpr app_Lettering plain{12.0, app_Anchor::Start, "#666666", false, false};
    const app_Point corner = bounds.Min();
    Text({corner.x, corner.y - 42.0}, Clipped(title), bold);
    Text({corner.x, corner.y - 22.0}, Clipped(below), plain);
}

std::string app_Svg::Document(const std::string& title) const
{
    const double left = std::floor(bounds.Min().x - margin);
    const double top = std::floor(bounds.Min().y - margin);
    const std::string width = Length(std::ceil(bounds.Max().x + margin) - left);
    const std::string height = Length(std::ceil(bounds.Max().y + margin) - top);
    const std::string corner = Length(left) + ' ' + Length(top);
    return fmt::format(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" height=\"{1}\" viewBox=\"{2} {0} {1}\" "
        "font-family=\"sans-serif\" role=\"img\">\n<title>{3}</title>\n"
        "<rect x=\"{4}\" y=\"{5}\" width=\"{0}\" height=\"{1}\" fill=\"#ffffff\"/>\n{6}</svg>\n",
        width, height, corner, app_XmlText(title), Length(left), Length(top), body);
}
