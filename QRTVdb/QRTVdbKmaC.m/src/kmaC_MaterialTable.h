#pragma once

#include "cls_Class.h"
#include "cls_HostRecords.h"

/// Tabular material data: rows of numbers, the constants first and then what they depend on. How many columns
/// there are follows from the owner's switches, but nothing here counts them.
class OVR_EXPORT kmaC_MaterialTable : public mem_AllocationOperators
{
    CLS_DIRECT(kmaC_MaterialTable, 0x2380058, 203)

    CLS_ATTRIBUTE(cls_xp2DArrayDouble, table)
    /// Whether the first row may be all zero.
    CLS_ATTRIBUTE(bool, allowEmptyFirstRow, false)

    /// All values zero.
    kmaC_MaterialTable(int rows, int columns);
    explicit kmaC_MaterialTable(const cow_2DArray<double>& data);

    /// An empty table whose first row may be all zero.
    static kmaC_MaterialTable WithEmptyFirstRow();

    unsigned DynTypeId() const { return TypeId(); }

    int Rows() const { return table.Rows(); }
    int Columns() const { return table.Columns(); }
    double Value(int row, int column) const { return table.ConstGet(row, column); }

    /// Throws if a row is blank: has columns, all of them exactly zero. The first row may be where
    /// `allowEmptyFirstRow` says so.
    void AssertValid() const;

    /// Puts the rows in ascending order of their last `keyCount` columns, of which the last weighs most; rows
    /// with equal keys keep their order. A NaN counts as no greater than anything. A count of 0 does nothing,
    /// a greater one than there are columns stands for all of them.
    void Sort(int keyCount);

    /// Equal shapes and equal numbers; a NaN equals nothing.
    friend bool operator==(const kmaC_MaterialTable& left, const kmaC_MaterialTable& right)
    {
        return static_cast<const cow_2DArray<double>&>(left.table) == right.table;
    }
    friend bool operator!=(const kmaC_MaterialTable& left, const kmaC_MaterialTable& right)
    {
        return !(left == right);
    }
    CLS_END
};

template <>
struct cls_kinds::RecordForm<kmaC_MaterialTable>
{
    static constexpr cls_KindEnm kindId = cls_KindEnm::Table;
};

/// {"table": [[1.0, 2.0]], "allowEmptyFirstRow": false}
OVR_EXPORT cls_Value cls_ExportRecord(const kmaC_MaterialTable& table);
/// Takes what is exported, and plain rows; what the value leaves out stays as it is.
OVR_EXPORT void cls_ImportRecord(kmaC_MaterialTable& table, const cls_Value& value);
