#include "app_Plot.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <fmt/format.h>

namespace
{

// A braille character has two columns of four dots.
constexpr int dotColumns = 2;
constexpr int dotRows = 4;
constexpr int plotWidth = 72;
constexpr int plotHeight = 12;
constexpr int labelWidth = 10;

/// A range of numbers that is never empty, and where in it a number lies.
class Range
{
public:
    explicit Range(const std::vector<double>& numbers)
    {
        const auto [smallest, largest] = std::minmax_element(numbers.begin(), numbers.end());
        low = *smallest;
        high = *largest;
        if (low < high)
            return;
        const double around = low == 0.0 ? 1.0 : std::abs(low) / 2.0;
        low -= around;
        high += around;
    }

    double Low() const { return low; }

    double High() const { return high; }

    double Middle() const { return low / 2.0 + high / 2.0; }

    /// The place of a number on a scale of `steps`, from 0 on.
    int Place(double number, int steps) const
    {
        // Halves first: the width of the range itself may be too large for a double.
        const double part = (number / 2.0 - low / 2.0) / (high / 2.0 - low / 2.0);
        return std::clamp(static_cast<int>(std::lround(part * (steps - 1))), 0, steps - 1);
    }

private:
    double low;
    double high;
};

/// A character of Unicode's basic plane above U+07FF, as UTF-8.
std::string Character(unsigned code)
{
    return {static_cast<char>(0xE0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3F)),
            static_cast<char>(0x80 | (code & 0x3F))};
}

/// A field of dots, drawn as braille characters.
class Canvas
{
public:
    static constexpr int Columns = plotWidth * dotColumns;
    static constexpr int Rows = plotHeight * dotRows;

    /// Joins two dots by a straight line; row 0 is the lowest.
    void Line(int x0, int y0, int x1, int y1)
    {
        const int steps = std::max({std::abs(x1 - x0), std::abs(y1 - y0), 1});
        for (int i = 0; i <= steps; ++i)
            Set(x0 + static_cast<int>(std::lround(static_cast<double>(x1 - x0) * i / steps)),
                y0 + static_cast<int>(std::lround(static_cast<double>(y1 - y0) * i / steps)));
    }

    /// One line of characters, from the top.
    std::string Text(int line) const
    {
        std::string text;
        for (int column = 0; column < plotWidth; ++column)
        {
            const unsigned char cell = cells[static_cast<std::size_t>(line * plotWidth + column)];
            text += cell ? Character(0x2800U | cell) : " ";
        }
        return text;
    }

private:
    void Set(int x, int y)
    {
        // Bits of the dots, column after column, from the top.
        constexpr unsigned char bits[dotColumns][dotRows] = {{0x01, 0x02, 0x04, 0x40},
                                                             {0x08, 0x10, 0x20, 0x80}};
        const int fromTop = Rows - 1 - y;
        cells[static_cast<std::size_t>(fromTop / dotRows * plotWidth + x / dotColumns)] |=
            bits[x % dotColumns][fromTop % dotRows];
    }

    std::vector<unsigned char> cells = std::vector<unsigned char>(plotWidth * plotHeight);
};

Canvas Draw(const app_Curve& curve, const Range& x, const Range& y)
{
    Canvas canvas;
    for (std::size_t i = 1; i < curve.x.size(); ++i)
        canvas.Line(x.Place(curve.x[i - 1], Canvas::Columns), y.Place(curve.y[i - 1], Canvas::Rows),
                    x.Place(curve.x[i], Canvas::Columns), y.Place(curve.y[i], Canvas::Rows));
    return canvas;
}

std::string LabelOfLine(int line, const Range& y)
{
    if (line == 0)
        return fmt::format("{:.4g}", y.High());
    if (line == plotHeight / 2)
        return fmt::format("{:.4g}", y.Middle());
    return line == plotHeight - 1 ? fmt::format("{:.4g}", y.Low()) : "";
}

std::string BottomLine(const Range& x, const std::string& name)
{
    const std::string low = fmt::format("{:.4g}", x.Low());
    const std::string high = fmt::format("{:.4g}", x.High());
    const int room = plotWidth - static_cast<int>(low.size() + high.size());
    return fmt::format("{:{}}{}{:^{}}{}\n", "", labelWidth + 2, low, name, std::max(room, 0), high);
}

} // namespace

app_Curve app_FinitePoints(const app_Curve& curve)
{
    app_Curve finite{{}, {}, curve.xName};
    for (std::size_t i = 0; i < curve.x.size(); ++i)
    {
        if (!std::isfinite(curve.x[i]) || !std::isfinite(curve.y[i]))
            continue;
        finite.x.push_back(curve.x[i]);
        finite.y.push_back(curve.y[i]);
    }
    return finite;
}

std::string app_Plot(const app_Curve& given, std::size_t indent)
{
    const app_Curve curve = app_FinitePoints(given);
    if (curve.x.size() < 2)
        return "";
    const Range x(curve.x);
    const Range y(curve.y);
    const Canvas canvas = Draw(curve, x, y);
    const std::string margin(indent, ' ');
    std::string text;
    for (int line = 0; line < plotHeight; ++line)
    {
        const std::string label = LabelOfLine(line, y);
        std::string row = fmt::format("{}{:>{}} {}{}", margin, label, labelWidth, label.empty() ? "│" : "┤",
                                      canvas.Text(line));
        row.erase(row.find_last_not_of(' ') + 1);
        text += row + '\n';
    }
    std::string axis;
    for (int column = 0; column < plotWidth; ++column)
        axis += "─";
    text += fmt::format("{}{:{}}└{}\n", margin, "", labelWidth + 1, axis);
    return text + margin + BottomLine(x, curve.xName);
}

std::string app_Sparkline(const app_Curve& given, std::size_t width)
{
    const app_Curve curve = app_FinitePoints(given);
    if (curve.x.size() < 2)
        return "";
    const Range x(curve.x);
    const Range y(curve.y);
    // Each place shows the value of its points that lies farthest from the middle; a place without points
    // shows what the curve has there, a straight line.
    std::vector<double> shown(width, y.Middle());
    for (std::size_t i = 1; i < curve.x.size(); ++i)
    {
        const int from = x.Place(curve.x[i - 1], static_cast<int>(width));
        const int to = x.Place(curve.x[i], static_cast<int>(width));
        for (int place = from; place <= to; ++place)
        {
            const double part = to == from ? 1.0 : static_cast<double>(place - from) / (to - from);
            const double value = curve.y[i - 1] * (1.0 - part) + curve.y[i] * part;
            double& best = shown[static_cast<std::size_t>(place)];
            if (std::abs(value - y.Middle()) > std::abs(best - y.Middle()))
                best = value;
        }
    }
    std::string text;
    for (const double value : shown)
        text += Character(0x2581U + static_cast<unsigned>(y.Place(value, 8)));
    return text;
}
