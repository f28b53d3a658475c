#pragma once

#include "cls_xpCollections.h"
#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;

/// A table of properties: rows of numbers, the properties first and the values on which they depend in the
/// last columns. A cell that was left blank holds a NaN.
class OVR_EXPORT mdl_PropertyTable : public mem_AllocationOperators
{
public:
    /// No rows and no columns.
    mdl_PropertyTable();
    explicit mdl_PropertyTable(const cow_2DArray<double>& data);
    explicit mdl_PropertyTable(const cls_ReadVisitor& visitor);

    int Rows() const { return data.Rows(); }
    int Columns() const { return data.Columns(); }
    /// The number in a row and column, both counted from 0.
    double Value(int row, int column) const { return data.ConstGet(row, column); }

    const cow_2DArray<double>& ConstGetData() const { return data; }
    /// Takes new content, under a new identity of its row.
    void SetData(const cow_2DArray<double>& newData) { data = newData; }

    /// Throws `nex_PrimException<atr_String, 1>` naming the first cell, row by row, that is blank.
    void AssertValid() const;

    /// Puts the rows in ascending order of their last `keyCount` columns. The last column weighs most, so
    /// that the rows for one value of it stay together; rows with equal keys keep their order, and blank keys
    /// come last. A count below 1 changes nothing, one above the count of columns stands for all of them.
    void Sort(int keyCount);

    /// Equality of shape and of every number; a blank cell differs from everything. Identities don't count.
    friend bool operator==(const mdl_PropertyTable& left, const mdl_PropertyTable& right)
    {
        return left.ConstGetData() == right.ConstGetData();
    }
    friend bool operator!=(const mdl_PropertyTable& left, const mdl_PropertyTable& right)
    {
        return !(left == right);
    }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    static unsigned TypeId() { return 0xA0003; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cls_xp2DArrayDouble data;
    cls_Uid uid;
};
