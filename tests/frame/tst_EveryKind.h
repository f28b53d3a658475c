#pragma once

#include "cls_Class.h"
#include "cls_ObjectCollections.h"

/// A small object, held directly.
class tst_Leaf : public mem_AllocationOperators
{
    CLS_DIRECT(tst_Leaf, 0x7F000001, 203)
    CLS_ATTRIBUTE(double, size, 1.0)
    CLS_ATTRIBUTE(cow_String, name)
    CLS_END
};

/// An object that others derive from.
class tst_Branch : public mem_AllocationOperators
{
    CLS_ABSTRACT_ROOT(tst_Branch, 0x7F000002, 203)
    CLS_ATTRIBUTE(int, number, -1)
    CLS_END
};

class tst_Twig : public tst_Branch
{
    CLS_CONCRETE(tst_Twig, tst_Branch, 0x7F000003, 203)
    CLS_ATTRIBUTE(bool, isGreen, true)
    CLS_END
};

class tst_Wing : public tst_Twig
{
    CLS_CONCRETE(tst_Wing, tst_Twig, 0x7F000005, 203)
    CLS_END
};

using tst_LeafHandle = cow_COW<tst_Leaf, cow_Direct<tst_Leaf>>;
using tst_BranchHandle = cow_COW<tst_Branch, cow_Virtual<tst_Branch>>;
using tst_BranchElement = cls_ElementHandle<tst_Branch>;
using tst_BranchList = cls_xc1DArrayList<tst_BranchElement, tst_Branch>;
using tst_BranchesByName = cls_xcBtree<cow_String, tst_BranchElement, tst_Branch>;
using tst_BranchesByNumber = cls_xcBtree<int, tst_BranchElement, tst_Branch>;
using tst_DotHandle = cow_COW<gsl_Dot, cow_Direct<gsl_Dot>>;
using tst_RegionHandle = cow_COW<rgnC_Region, cow_Direct<rgnC_Region>>;

/// Has an attribute of every kind that there is, so that all of them are covered whatever the modules use.
class tst_EveryKind : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(tst_EveryKind, 0x7F000004, 203)
    OMU_ENUM(ColourEnm, RED = 3, GREEN = 1)

    CLS_ATTRIBUTE(int, integer, 0)
    CLS_ATTRIBUTE(double, number, 0.0)
    CLS_ATTRIBUTE(cow_String, text)
    CLS_ATTRIBUTE(bool, truth, false)
    CLS_ATTRIBUTE(ColourEnm, colour, ColourEnm::RED)
    CLS_ATTRIBUTE(tst_LeafHandle, leaf)
    CLS_ATTRIBUTE(tst_BranchHandle, branch)
    CLS_ATTRIBUTE(cls_xp1DArrayListInt, integers)
    CLS_ATTRIBUTE(cls_xp1DArrayListDouble, numbers)
    CLS_ATTRIBUTE(cls_xp1DArrayListBool, truths)
    CLS_ATTRIBUTE(cls_xp1DArrayListString, texts)
    CLS_ATTRIBUTE(tst_BranchList, branches)
    CLS_ATTRIBUTE(cls_xoList<tst_Leaf>, leaves)
    CLS_ATTRIBUTE(tst_BranchesByName, byName)
    CLS_ATTRIBUTE(tst_BranchesByNumber, byNumber)
    CLS_ATTRIBUTE(cls_xp2DArrayDouble, array)
    CLS_ATTRIBUTE(cls_xpMapString2Array2D, arrays)
    CLS_ATTRIBUTE(cls_xpMapString2Float, floats)
    CLS_ATTRIBUTE(mdl_PropertyTable, properties)
    CLS_ATTRIBUTE(rgnC_Region, region)
    CLS_ATTRIBUTE(tst_RegionHandle, optionalRegion)
    CLS_ATTRIBUTE(cls_xoList<rgnC_Region>, regions)
    CLS_ATTRIBUTE(cls_xo1DArrayList<rgnC_RegionPair>, pairs)
    CLS_ATTRIBUTE(dtmC_DatumRef, datum)
    CLS_ATTRIBUTE(gsl_ModelSegment, segment)
    CLS_ATTRIBUTE(cls_xo1DArrayList<gsl_ModelSegment>, segments)
    CLS_ATTRIBUTE(gsl_Dot, dot)
    CLS_ATTRIBUTE(tst_DotHandle, optionalDot)
    CLS_ATTRIBUTE(cls_Pending<0x7F000003>, pending)
    CLS_END
};

/// Has a list of objects by value whose class others derive from.
class tst_TwigHolder : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(tst_TwigHolder, 0x7F000006, 203)
    CLS_ATTRIBUTE(tst_BranchList, branches)
    CLS_ATTRIBUTE(cls_xo1DArrayList<tst_Twig>, twigs)
    CLS_END
};

/// Brings up the library and registers these classes but for the last one, once.
void tst_RequireEveryKind();
/// Registers the last one. Tests over every class leave it out: random values do not know that an element
/// must be of just one class.
void tst_RequireTwigHolder();
