#pragma once

#include "cow_COW.h"

/// Stored codes of attribute kinds.
enum OVR_EXPORT cls_AttributeType : int
{
    cls_TypeInt = 5,
    cls_TypeIntSecond = 7, ///< An integer like code 5; kept because one attribute was declared with it.
    cls_TypeDouble = 10,
    cls_TypeText = 11,
    cls_TypeBool = 13,
    cls_TypeEnum = 14,
    cls_TypeObject = 15
};

/// Stored codes of collections; 0 for a single object.
enum cls_CollectionType : int
{
    cls_CollectionNone = 0,
    cls_CollectionListObj = 1,
    cls_CollectionMapString2Obj = 2,
    cls_CollectionMapInt2Obj = 3,
    cls_CollectionListBool = 51,
    cls_CollectionListDouble = 52,
    cls_CollectionListInt = 54,
    cls_CollectionListText = 55,
    cls_CollectionMapString2Float = 63,
    cls_Collection2DArrayDouble = 82,
    cls_CollectionMapString2Array2D = 112
};

/// Class id of a root: the parent of a class with no parent of interest.
inline constexpr unsigned cls_RootId = 1;
/// Class id under which every list-like collection has its row, arrays included.
inline constexpr unsigned cls_ListTypeId = 0x230001;
/// Class id under which every map-like collection has its row.
inline constexpr unsigned cls_MapTypeId = 0x230002;

/// A handle whose element type is not told, as metadata and mementos pass it on.
using cls_ErasedHandle = cow_ErasedCOW;
