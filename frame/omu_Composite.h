#pragma once

#include "cls_xpCollections.h"
#include "omu_Arguments.h"
#include "omu_PrimEnum.h"
#include "omu_PrimList.h"

#include <memory>
#include <type_traits>

// How values of several fields pass between scripts and objects. A class `X` of such values offers two
// functions, made of its fields in order:
//
//     void omu_Get(omu_PrimTuple& tuple, X& x)      { omu_GetFields(tuple, x.first, x.second); }
//     omu_Primitive* omu_ReturnPrim(const X& x)     { return omu_ReturnFields(x.first, x.second); }
//
// and has its lists read and returned by the templates below.

namespace omu_detail
{

template <class T>
void GetField(omu_PrimTuple& tuple, T& field)
{
    if constexpr (std::is_enum_v<T>)
    {
        omu_PrimEnum<T, 1> value(field);
        tuple.Get(value);
        if (!tuple.Alternative())
            field = value.Value();
    }
    else if constexpr (std::is_same_v<T, cls_xp1DArrayListDouble>)
    {
        // By way of a plain list, so that the field takes a new identity with a new value.
        cow_List<double> values;
        tuple.Get(values);
        if (!tuple.Alternative())
            field = values;
    }
    else
        tuple.Get(field);
}

template <class T>
void PutField(omu_PrimTuple& tuple, const T& field)
{
    // A value of an enumeration is returned as its number, though it is read as its text: scripts rely on it.
    if constexpr (std::is_enum_v<T>)
        tuple.Put(static_cast<int>(field));
    else
        tuple.Put(field);
}

} // namespace omu_detail

/// Takes the next value of `tuple`, itself a tuple, as the fields in order. Where there is none, or an empty
/// one, the fields stay as they are, and so does each field for which it has no value. Throws
/// `nex_CmdException<atr_String, 2>` for values that do not fit; the fields before are then changed.
template <class... Fields>
void omu_GetFields(omu_PrimTuple& tuple, Fields&... fields)
{
    omu_PrimTuple nested(0, '(');
    tuple.Get(nested);
    if (nested.IsEmpty())
        return;
    nested.Begin();
    (omu_detail::GetField(nested, fields), ...);
    nested.End("");
}

/// The fields in order as a tuple, owned by the caller; a value of an enumeration as its plain number.
template <class... Fields>
omu_Primitive* omu_ReturnFields(const Fields&... fields)
{
    auto tuple = std::make_unique<omu_PrimTuple>(static_cast<int>(sizeof...(fields)), '(');
    (omu_detail::PutField(*tuple, fields), ...);
    return tuple.release();
}

/// Takes the next value of `tuple`, a sequence, as the new content of the list; where there is none the list
/// stays as it is. Throws as for one value; the list then holds the values before.
template <class X>
void omu_Get(omu_PrimTuple& tuple, cow_List<X>& list)
{
    omu_PrimTuple nested(0, '(');
    tuple.Get(nested);
    if (tuple.Alternative())
        return;
    list.Resize(0);
    nested.Begin();
    for (int i = 0; i < nested.Count(); ++i)
    {
        X element;
        omu_Get(nested, element);
        list.Append(element);
    }
    nested.End("");
}

/// The same for the argument of this name.
template <class X>
void omu_Get(omu_Arguments& arguments, cow_List<X>& list, const char* name)
{
    omu_PrimTuple tuple(0, '(');
    arguments.Get(tuple, name);
    if (arguments.ErrorOnPrevious())
        return;
    omu_Arguments nested(1);
    nested.Put(tuple);
    nested.Begin();
    omu_Get(static_cast<omu_PrimTuple&>(nested), list);
    nested.End("");
}

/// The values as a list, owned by the caller.
template <class X>
omu_Primitive* omu_ReturnPrim(const cow_List<X>& list)
{
    auto primitives = std::make_unique<omu_PrimList>();
    for (const X& element : list)
        primitives->Add(omu_ReturnPrim(element));
    return primitives.release();
}
