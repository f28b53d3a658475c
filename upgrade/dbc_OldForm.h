#pragma once

#include "cls_Types.h"
#include "dbc_ClassConverter.h"

#include <array>
#include <span>
#include <string_view>

// Old stored forms of classes as data: what stands in a declaration of dbc_DeclaredVersion.h.

/// One attribute of an old form.
struct dbc_OldAttribute
{
    /// Index of an attribute that stands where its position in the list says.
    static constexpr int InOrder = -2;

    int index;
    const char* name;
    cls_AttributeType type;
    unsigned typeId = cls_RootId;
    cls_CollectionType collection = cls_CollectionNone;
};

// Attributes by their kind, with the index that they had; without one the index is the position in the list.

constexpr dbc_OldAttribute dbc_Int(int index, const char* name)
{
    return {index, name, cls_TypeInt};
}

constexpr dbc_OldAttribute dbc_Double(int index, const char* name)
{
    return {index, name, cls_TypeDouble};
}

constexpr dbc_OldAttribute dbc_Text(int index, const char* name)
{
    return {index, name, cls_TypeText};
}

constexpr dbc_OldAttribute dbc_Bool(int index, const char* name)
{
    return {index, name, cls_TypeBool};
}

/// An enumeration, of which the text alone is known.
constexpr dbc_OldAttribute dbc_Enum(int index, const char* name)
{
    return {index, name, cls_TypeEnum};
}

/// One object of class `classId` or of one that derives from it.
constexpr dbc_OldAttribute dbc_Object(int index, const char* name, unsigned classId)
{
    return {index, name, cls_TypeObject, classId};
}

/// A collection, list-like or map-like as its code says.
constexpr dbc_OldAttribute dbc_Collection(int index, const char* name, cls_CollectionType code)
{
    const bool isMap = code == cls_CollectionMapString2Obj || code == cls_CollectionMapInt2Obj ||
                       code == cls_CollectionMapString2Float || code == cls_CollectionMapString2Array2D;
    return {index, name, cls_TypeObject, isMap ? cls_MapTypeId : cls_ListTypeId, code};
}

constexpr dbc_OldAttribute dbc_Int(const char* name)
{
    return dbc_Int(dbc_OldAttribute::InOrder, name);
}

constexpr dbc_OldAttribute dbc_Double(const char* name)
{
    return dbc_Double(dbc_OldAttribute::InOrder, name);
}

constexpr dbc_OldAttribute dbc_Text(const char* name)
{
    return dbc_Text(dbc_OldAttribute::InOrder, name);
}

constexpr dbc_OldAttribute dbc_Bool(const char* name)
{
    return dbc_Bool(dbc_OldAttribute::InOrder, name);
}

constexpr dbc_OldAttribute dbc_Enum(const char* name)
{
    return dbc_Enum(dbc_OldAttribute::InOrder, name);
}

constexpr dbc_OldAttribute dbc_Object(const char* name, unsigned classId)
{
    return dbc_Object(dbc_OldAttribute::InOrder, name, classId);
}

constexpr dbc_OldAttribute dbc_Collection(const char* name, cls_CollectionType code)
{
    return dbc_Collection(dbc_OldAttribute::InOrder, name, code);
}

/// A list of attributes. Versions of one class that have much in common can share lists.
template <std::size_t Count>
using dbc_OldAttributes = std::array<dbc_OldAttribute, Count>;

/// For a form that has no attribute of its own.
inline constexpr dbc_OldAttributes<0> dbc_NoAttributes{};

namespace dbc_detail
{

template <class Part>
inline constexpr std::size_t countOf = 1;

template <std::size_t Count>
inline constexpr std::size_t countOf<dbc_OldAttributes<Count>> = Count;

template <std::size_t Count>
constexpr void Append(dbc_OldAttributes<Count>& list, std::size_t& used, const dbc_OldAttribute& attribute)
{
    list[used++] = attribute;
}

template <std::size_t Count, std::size_t PartCount>
constexpr void Append(dbc_OldAttributes<Count>& list, std::size_t& used,
                      const dbc_OldAttributes<PartCount>& part)
{
    for (const dbc_OldAttribute& attribute : part)
        Append(list, used, attribute);
}

} // namespace dbc_detail

/// One list of attributes and of lists of attributes, in the order given.
template <class... Parts>
constexpr auto dbc_Attributes(const Parts&... parts)
{
    dbc_OldAttributes<(0 + ... + dbc_detail::countOf<Parts>)> list{};
    std::size_t used = 0;
    (dbc_detail::Append(list, used, parts), ...);
    return list;
}

/// A list without the attributes of these names. A name that is not in the list stops the compilation.
template <std::size_t Count, class... Names>
constexpr auto dbc_Without(const dbc_OldAttributes<Count>& all, Names... names)
{
    dbc_OldAttributes<Count - sizeof...(Names)> list{};
    std::size_t used = 0;
    for (const dbc_OldAttribute& attribute : all)
    {
        const std::string_view name = attribute.name;
        if (!((name == std::string_view(names)) || ...))
            list.at(used++) = attribute;
    }
    if (used != list.size())
        throw "no attribute has this name";
    return list;
}

/// A function with the name under which it is bound.
template <class Function>
struct dbc_Named
{
    Function function = nullptr;
    const char* name = "";
};

/// The function of this name; several names may stand for one function.
#define DBC_FUNCTION(name)                                                                                   \
    {                                                                                                        \
        name, #name                                                                                          \
    }

/// What leads from an old form to the next one.
struct dbc_Step
{
    /// A step without function: attributes of one name are taken over, others go or take their defaults.
    constexpr explicit dbc_Step(int next) : next(next) {}

    constexpr dbc_Step(int next, dbc_Named<dbc_ConversionFunction> conversion)
        : next(next), conversion(conversion)
    {}

    constexpr dbc_Step(int next, dbc_Named<dbc_ConversionFunction> conversion,
                       dbc_Named<dbc_FinalizeFunction> finalizer)
        : next(next), conversion(conversion), finalizer(finalizer)
    {}

    int next; ///< version of the next form; `NoNext` if this class leads to none
    dbc_Named<dbc_ConversionFunction> conversion;
    dbc_Named<dbc_FinalizeFunction> finalizer;

    static constexpr int NoNext = 0;
};

/// Of a form that no step leads away from, as that of a class whose rows move to another.
inline constexpr dbc_Step dbc_NoStep{dbc_Step::NoNext};

/// Which class an old form is of.
struct dbc_OldIdentity
{
    unsigned classId;
    unsigned baseId = cls_RootId;
    bool isDeleted = false;
    const char* newName = nullptr;

    /// The class no longer stands by itself.
    constexpr dbc_OldIdentity Deleted() const { return {classId, baseId, true, newName}; }

    /// The class has this name now.
    constexpr dbc_OldIdentity RenamedTo(const char* name) const { return {classId, baseId, isDeleted, name}; }
};

/// A class without base.
constexpr dbc_OldIdentity dbc_Root(unsigned classId)
{
    return {classId};
}

/// A class with a base.
constexpr dbc_OldIdentity dbc_Derived(unsigned classId, unsigned baseId)
{
    return {classId, baseId};
}

/// An old stored form of a class.
struct dbc_OldForm
{
    const char* className;
    int version;
    dbc_OldIdentity identity;
    dbc_Step step;
    std::span<const dbc_OldAttribute> attributes;
};
