#include "app_Chart.h"

#include "app_Error.h"
#include "app_Svg.h"
#include "cls_Value.h"

#include <map>

#include <fmt/format.h>

namespace
{

double Cell(const cls_Value& rows, std::size_t row, std::size_t column)
{
    const cls_Value::Array& cells = cls_ArrayOfValue(cls_ArrayOfValue(rows)[row]);
    if (cells.size() <= column)
        throw app_Error(fmt::format("row {} of its table has {} columns, expected at least {}", row + 1,
                                    cells.size(), column + 1));
    return cls_DoubleOfValue(cells[column]);
}

} // namespace

std::vector<app_Series> app_SeriesOfRows(const cls_Value& rows, const app_ChartColumns& columns)
{
    std::vector<app_Series> series;
    std::map<std::string, std::size_t> places;
    for (std::size_t row = 0; row < cls_ArrayOfValue(rows).size(); ++row)
    {
        std::string name;
        for (std::size_t i = 0; i < columns.keys.size(); ++i)
            name += fmt::format("{}{} {}", i == 0 ? "" : ", ", columns.keyNames[i],
                                app_NumberText(Cell(rows, row, columns.keys[i])));
        const auto [place, isNew] = places.try_emplace(name, series.size());
        if (isNew)
            series.push_back({name, {}, {}});
        series[place->second].x.push_back(Cell(rows, row, columns.x));
        series[place->second].y.push_back(Cell(rows, row, columns.y));
    }
    return series;
}
