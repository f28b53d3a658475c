#include "app_Table.h"

#include <algorithm>

#include <fmt/format.h>

namespace
{

constexpr std::size_t gap = 2;

} // namespace

app_Table::app_Table(std::vector<Align> columns) : columns(std::move(columns)) {}

void app_Table::Add(std::vector<std::string> cells)
{
    cells.resize(columns.size());
    rows.push_back(std::move(cells));
}

std::string app_Table::Text(std::size_t indent) const
{
    std::vector<std::size_t> widths(columns.size(), 0);
    for (const std::vector<std::string>& row : rows)
    {
        for (std::size_t i = 0; i < columns.size(); ++i)
            widths[i] = std::max(widths[i], app_Width(row[i]));
    }
    std::string text;
    for (const std::vector<std::string>& row : rows)
    {
        std::string line(indent, ' ');
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            if (widths[i] == 0)
                continue;
            const std::string blanks(widths[i] - app_Width(row[i]), ' ');
            line += columns[i] == Align::Left ? row[i] + blanks : blanks + row[i];
            line.append(gap, ' ');
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + '\n';
    }
    return text;
}

std::size_t app_Width(const std::string& text)
{
    // Bytes that continue a character take no place of their own.
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string app_Count(long count, const std::string& noun)
{
    return app_Count(count, noun, noun + 's');
}

std::string app_Count(long count, const std::string& singular, const std::string& plural)
{
    return fmt::format("{} {}", count, count == 1 ? singular : plural);
}
