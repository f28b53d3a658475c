#pragma once

#include <string>
#include <vector>

/// Points of one curve, in the order in which they are joined.
struct app_Series
{
    std::string name; ///< What tells it from the others, as "temperature 20"; may be empty for a single one.
    std::vector<double> x;
    std::vector<double> y;
};

/// What an object stands for, drawn as curves over one pair of axes.
struct app_Chart
{
    std::string xName;
    std::string yName;
    std::vector<app_Series> series;
    bool hasPoints = false; ///< The points are data, not samples of a law: they are marked if they are few.
    bool mayBeLogarithmic = false; ///< Readers expect logarithmic axes where the numbers span decades.
    bool isHeldAtEnd = false;      ///< Behind its last point each curve goes on level.
    bool isYFromZero = false;      ///< Heights are to be compared from zero on.
};

/// Rows of numbers as points, one curve for each combination of what stands in the columns `keys`.
struct app_ChartColumns
{
    std::size_t x;
    std::size_t y;
    std::vector<std::size_t> keys;
    /// What each key is called, for the names of the curves.
    std::vector<std::string> keyNames;
};

class cls_Value;

/// Gathers the curves of a table, an array of rows, in the order of their first rows. A row that lacks a
/// column throws `app_Error`.
std::vector<app_Series> app_SeriesOfRows(const cls_Value& rows, const app_ChartColumns& columns);
