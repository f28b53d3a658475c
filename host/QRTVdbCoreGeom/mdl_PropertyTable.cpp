#include "mdl_PropertyTable.h"

#include "atr_translate.h"
#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"
#include "nex_Exceptions.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace
{
constexpr int propertyTableVersion = 203;

cls_FieldHandle DataField()
{
    return cls_FieldHandle(0, "data");
}

void RaiseBlank(int row, int column)
{
    atr_translate message("Row %d, column %d of the table holds no number.", 0);
    atr_SubstituteFormat(message, 1, row + 1, 0);
    atr_SubstituteFormat(message, 2, column + 1, 0);
    nex_PrimException<atr_String, 1>(message.Result(0), 0).Throw(__FILE__, __LINE__);
}

/// Numbers ascending, then NaN; below 0, 0 or above 0 as for strcmp.
int CompareKeys(double left, double right)
{
    if (std::isnan(left) || std::isnan(right))
        return int(std::isnan(left)) - int(std::isnan(right));
    return int(left > right) - int(left < right);
}

/// Whether the row comes before the other by the columns from `firstKey` on, of which the last weighs most.
bool RowPrecedes(const cow_2DArray<double>& data, int firstKey, int row, int other)
{
    for (int column = data.Columns() - 1; column >= firstKey; --column)
    {
        const int order = CompareKeys(data.ConstGet(row, column), data.ConstGet(other, column));
        if (order != 0)
            return order < 0;
    }
    return false;
}

cow_2DArray<double> InOrder(const cow_2DArray<double>& data, const std::vector<int>& order)
{
    cow_2DArray<double> sorted(data.Rows(), data.Columns());
    for (int row = 0; row < data.Rows(); ++row)
    {
        for (int column = 0; column < data.Columns(); ++column)
            sorted.Get(row, column) = data.ConstGet(order[static_cast<std::size_t>(row)], column);
    }
    return sorted;
}
} // namespace

mdl_PropertyTable::mdl_PropertyTable()
{
    uid.AllocateUid();
}

mdl_PropertyTable::mdl_PropertyTable(const cow_2DArray<double>& data) : data(data)
{
    uid.AllocateUid();
}

mdl_PropertyTable::mdl_PropertyTable(const cls_ReadVisitor& visitor)
    : data(cls_ReadVisitor(visitor, DataField())), uid(visitor.GetUid())
{}

void mdl_PropertyTable::AssertValid() const
{
    for (int row = 0; row < Rows(); ++row)
    {
        for (int column = 0; column < Columns(); ++column)
        {
            if (std::isnan(Value(row, column)))
                RaiseBlank(row, column);
        }
    }
}

void mdl_PropertyTable::Sort(int keyCount)
{
    const int firstKey = Columns() - std::clamp(keyCount, 0, Columns());
    std::vector<int> order(static_cast<std::size_t>(Rows()));
    std::iota(order.begin(), order.end(), 0);
    const auto precedes = [this, firstKey](int row, int other)
    { return RowPrecedes(data, firstKey, row, other); };
    // A table that is in order keeps its data, and with it its row in the store.
    if (std::is_sorted(order.begin(), order.end(), precedes))
        return;
    std::stable_sort(order.begin(), order.end(), precedes);
    data = InOrder(data, order);
}

void mdl_PropertyTable::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    const cls_WriteVisitor nested(visitor, DataField(), nullptr, nullptr);
    data.DBWrite(nested);
}

void mdl_PropertyTable::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new cls_RootAdapter<mdl_PropertyTable>("mdl_PropertyTable", propertyTableVersion))
        ->AddAttribute(DataField(), cls_TypeObject, cls_ListTypeId, cls_Collection2DArrayDouble);
}
