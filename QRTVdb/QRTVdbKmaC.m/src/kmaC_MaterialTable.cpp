#include "kmaC_MaterialTable.h"

#include "kmaC_assert.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

CLS_IMPLEMENT(kmaC_MaterialTable)

namespace
{

using Array = cow_2DArray<double>;

bool IsBlank(const Array& array, int row)
{
    for (int column = 0; column < array.Columns(); ++column)
    {
        if (array.ConstGet(row, column) != 0.0)
            return false;
    }
    return array.Columns() > 0;
}

/// Whether the first row is greater by the key: columns from `firstKey` on, of which the last weighs most.
/// Numbers that cannot be compared decide that it is not.
bool IsGreater(const Array& array, int firstKey, int row, int other)
{
    for (int column = array.Columns() - 1; column >= firstKey; --column)
    {
        const double left = array.ConstGet(row, column);
        const double right = array.ConstGet(other, column);
        if (left != right)
            return left > right;
    }
    return false;
}

bool HasNaN(const Array& array, int firstKey)
{
    for (int row = 0; row < array.Rows(); ++row)
    {
        for (int column = firstKey; column < array.Columns(); ++column)
        {
            if (std::isnan(array.ConstGet(row, column)))
                return true;
        }
    }
    return false;
}

/// Sorts row numbers by insertion, which has one outcome also where the order is none.
template <class Greater>
void SortByInsertion(std::vector<int>& order, Greater isGreater)
{
    for (auto held = order.begin(); held != order.end(); ++held)
    {
        auto place = held;
        while (place != order.begin() && isGreater(*(place - 1), *held))
            --place;
        std::rotate(place, held, held + 1);
    }
}

std::vector<int> OrderOf(const Array& array, int firstKey)
{
    const auto isGreater = [&array, firstKey](int row, int other)
    { return IsGreater(array, firstKey, row, other); };
    std::vector<int> order(static_cast<std::size_t>(array.Rows()));
    std::iota(order.begin(), order.end(), 0);
    // Of comparable keys there is but one stable order, and a faster way to it.
    if (HasNaN(array, firstKey))
        SortByInsertion(order, isGreater);
    else
        std::stable_sort(order.begin(), order.end(),
                         [&isGreater](int row, int other) { return isGreater(other, row); });
    return order;
}

constexpr const char* tableName = "table";
constexpr const char* flagName = "allowEmptyFirstRow";

} // namespace

kmaC_MaterialTable::kmaC_MaterialTable(int rows, int columns)
    : kmaC_MaterialTable(cow_2DArray<double>(rows, columns))
{}

kmaC_MaterialTable::kmaC_MaterialTable(const cow_2DArray<double>& data) : kmaC_MaterialTable()
{
    table = data;
}

kmaC_MaterialTable kmaC_MaterialTable::WithEmptyFirstRow()
{
    kmaC_MaterialTable empty;
    empty.allowEmptyFirstRow = true;
    return empty;
}

void kmaC_MaterialTable::AssertValid() const
{
    for (int row = 0; row < Rows(); ++row)
        kmaC_Assert((row == 0 && allowEmptyFirstRow) || !IsBlank(table, row), 23);
}

void kmaC_MaterialTable::Sort(int keyCount)
{
    if (keyCount == 0)
        return;
    const std::vector<int> order = OrderOf(table, Columns() - std::clamp(keyCount, 0, Columns()));
    Array sorted(Rows(), Columns());
    for (int row = 0; row < Rows(); ++row)
    {
        for (int column = 0; column < Columns(); ++column)
            sorted.Set(row, column, Value(order[static_cast<std::size_t>(row)], column));
    }
    table = sorted;
}

cls_Value cls_ExportRecord(const kmaC_MaterialTable& table)
{
    return cls_Value::Object{{tableName, cls_ExportCollection(table.table)},
                             {flagName, table.allowEmptyFirstRow}};
}

void cls_ImportRecord(kmaC_MaterialTable& table, const cls_Value& value)
{
    kmaC_MaterialTable taken(table);
    if (value.AsArray())
        cls_ImportCollection(taken.table, value);
    else if (value.AsObject())
        kmaC_MaterialTable::Description().Import(&taken, value);
    else
        cls_RaiseUnexpected("rows of numbers, or an object with \"table\"", value);
    table = taken;
}
