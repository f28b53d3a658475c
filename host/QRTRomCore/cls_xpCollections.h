#pragma once

#include "cls_ReadVisitor.h"
#include "cls_Wrapper.h"
#include "cls_WriteVisitor.h"
#include "cow_2DArray.h"
#include "cow_List.h"
#include "cow_Map.h"

/// Wrapper of a list of plain values: `bool`, `double`, `int` or `cow_String`. Stored as one list-like row.
template <class T>
class cls_xpScalarList : public cls_Wrapper<cow_List<T>>
{
public:
    /// The collection code of the stored row.
    static constexpr cls_CollectionType Code = std::is_same_v<T, bool>     ? cls_CollectionListBool
                                               : std::is_same_v<T, double> ? cls_CollectionListDouble
                                               : std::is_same_v<T, int>    ? cls_CollectionListInt
                                                                           : cls_CollectionListText;

    using cls_Wrapper<cow_List<T>>::cls_Wrapper;
    using cls_Wrapper<cow_List<T>>::operator=;

    cls_xpScalarList() = default;
    /// Reads the row that the visitor stands on; its identity goes to `storedUid` too, unless that is null.
    explicit cls_xpScalarList(const cls_ReadVisitor& visitor, cls_Uid* storedUid = nullptr);

    void DBWrite(const cls_WriteVisitor& visitor) const;
};

extern template class OVR_EXPORT cls_xpScalarList<bool>;
extern template class OVR_EXPORT cls_xpScalarList<double>;
extern template class OVR_EXPORT cls_xpScalarList<int>;
extern template class OVR_EXPORT cls_xpScalarList<cow_String>;

using cls_xp1DArrayListBool = cls_xpScalarList<bool>;
using cls_xp1DArrayListDouble = cls_xpScalarList<double>;
using cls_xp1DArrayListInt = cls_xpScalarList<int>;
using cls_xp1DArrayListString = cls_xpScalarList<cow_String>;
using cls_xpListDouble = cls_xpScalarList<double>;
using cls_xpListInt = cls_xpScalarList<int>;
using cls_xp1DArrayInt = cls_xpScalarList<int>;
using cls_xpListString = cls_xpScalarList<cow_String>;

/// Wrapper of a two-dimensional array of double, stored row by row as one list-like row. An array without
/// columns has no rows either once it is stored.
class OVR_EXPORT cls_xp2DArrayDouble : public cls_Wrapper<cow_2DArray<double>>
{
public:
    static constexpr cls_CollectionType Code = cls_Collection2DArrayDouble;

    using cls_Wrapper<cow_2DArray<double>>::cls_Wrapper;
    using cls_Wrapper<cow_2DArray<double>>::operator=;

    cls_xp2DArrayDouble() = default;
    explicit cls_xp2DArrayDouble(const cls_ReadVisitor& visitor, cls_Uid* storedUid = nullptr);

    void DBWrite(const cls_WriteVisitor& visitor) const;
};

/// Wraps an array under a fresh identity.
OVR_EXPORT cls_xp2DArrayDouble cls_xp2DArrayDoubleFromCow(const cow_2DArray<double>& array);

/// Wrapper of a map from text to number, stored as one map-like row.
class OVR_EXPORT cls_xpMapString2Float : public cls_Wrapper<cow_Map<cow_String, float>>
{
public:
    static constexpr cls_CollectionType Code = cls_CollectionMapString2Float;

    using cls_Wrapper<cow_Map<cow_String, float>>::cls_Wrapper;
    using cls_Wrapper<cow_Map<cow_String, float>>::operator=;

    cls_xpMapString2Float() = default;
    explicit cls_xpMapString2Float(const cls_ReadVisitor& visitor);

    void DBWrite(const cls_WriteVisitor& visitor) const;
};

/// Wrapper of a map from text to two-dimensional array, stored as one map-like row and a row for each array.
class OVR_EXPORT cls_xpMapString2Array2D : public cls_Wrapper<cow_Map<cow_String, cls_xp2DArrayDouble>>
{
public:
    static constexpr cls_CollectionType Code = cls_CollectionMapString2Array2D;

    using cls_Wrapper<cow_Map<cow_String, cls_xp2DArrayDouble>>::cls_Wrapper;
    using cls_Wrapper<cow_Map<cow_String, cls_xp2DArrayDouble>>::operator=;

    cls_xpMapString2Array2D() = default;
    explicit cls_xpMapString2Array2D(const cls_ReadVisitor& visitor);

    void DBWrite(const cls_WriteVisitor& visitor) const;
};
