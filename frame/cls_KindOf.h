#pragma once

#include "cls_Description.h"
#include "cls_xpCollections.h"
#include "omu_PrimEnum.h"

#include <type_traits>

/// The kind of a member of type `T`: `cls_KindOf<T>::kind`. There is one specialization for each kind of
/// attribute and none for a class.
template <class T>
struct cls_KindOf;

// The plain content of a collection as a value, and the reverse; one pair of overloads for each kind of
// collection. An import throws `cls_ValueError` and leaves the collection as it was if the value does not
// fit.
template <class T>
OVR_EXPORT cls_Value cls_ExportCollection(const cls_xpScalarList<T>& list);
template <class T>
OVR_EXPORT void cls_ImportCollection(cls_xpScalarList<T>& list, const cls_Value& value);
OVR_EXPORT cls_Value cls_ExportCollection(const cls_xp2DArrayDouble& array);
OVR_EXPORT void cls_ImportCollection(cls_xp2DArrayDouble& array, const cls_Value& value);
OVR_EXPORT cls_Value cls_ExportCollection(const cls_xpMapString2Float& map);
OVR_EXPORT void cls_ImportCollection(cls_xpMapString2Float& map, const cls_Value& value);
OVR_EXPORT cls_Value cls_ExportCollection(const cls_xpMapString2Array2D& map);
OVR_EXPORT void cls_ImportCollection(cls_xpMapString2Array2D& map, const cls_Value& value);

namespace cls_kinds
{

/// A scalar that the mementos put and get as it is.
template <class T, cls_KindEnm KindId, cls_AttributeType Code>
class OVR_EXPORT ScalarKind final : public cls_Kind
{
public:
    constexpr ScalarKind() = default;
    cls_KindEnm Id() const override;
    cls_AttributeType Type() const override;
    void Write(const void* member, const cls_WriteVisitor& visitor,
               const cls_FieldHandle& field) const override;
    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const override;
    cls_Value Export(const void* member) const override;
    void Import(void* member, const cls_Value& value) const override;
};

using IntKind = ScalarKind<int, cls_KindEnm::Int, cls_TypeInt>;
using IntSecondKind = ScalarKind<int, cls_KindEnm::Int, cls_TypeIntSecond>;
using DoubleKind = ScalarKind<double, cls_KindEnm::Double, cls_TypeDouble>;
using BoolKind = ScalarKind<bool, cls_KindEnm::Bool, cls_TypeBool>;
using StringKind = ScalarKind<cow_String, cls_KindEnm::String, cls_TypeText>;

/// An enumeration, held as its integer and stored as its text.
class OVR_EXPORT EnumKindBase : public cls_Kind
{
public:
    cls_KindEnm Id() const final;
    cls_AttributeType Type() const final;
    void Write(const void* member, const cls_WriteVisitor& visitor, const cls_FieldHandle& field) const final;
    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const final;
    cls_Value Export(const void* member) const final;
    void Import(void* member, const cls_Value& value) const final;

protected:
    constexpr EnumKindBase() = default;
    ~EnumKindBase() = default;
};

template <class E>
class EnumKind final : public EnumKindBase
{
public:
    constexpr EnumKind() = default;
    const omu_EnumTable* Enum() const override { return &omu_PrimEnum<E, 1>::Table(); }
};

/// A collection wrapper held by value; `ElementRoot` is the root class of its elements, or void for plain
/// values.
template <class Wrapper, cls_KindEnm KindId, unsigned CollectionTypeId, class ElementRoot = void>
class CollectionKind final : public cls_Kind
{
public:
    constexpr CollectionKind() = default;

    cls_KindEnm Id() const override { return KindId; }

    cls_AttributeType Type() const override { return cls_TypeObject; }

    unsigned TypeId() const override { return CollectionTypeId; }

    cls_CollectionType Collection() const override { return Wrapper::Code; }

    const cls_Description* Of() const override
    {
        if constexpr (std::is_void_v<ElementRoot>)
            return nullptr;
        else
            return &ElementRoot::Description();
    }

    void Write(const void* member, const cls_WriteVisitor& visitor,
               const cls_FieldHandle& field) const override
    {
        const cls_WriteVisitor nested(visitor, field, nullptr, nullptr);
        static_cast<const Wrapper*>(member)->DBWrite(nested);
    }

    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const override
    {
        const cls_ReadVisitor nested(visitor, field);
        static_cast<Wrapper*>(member)->Restore(Wrapper(nested));
    }

    cls_Value Export(const void* member) const override
    {
        return cls_ExportCollection(*static_cast<const Wrapper*>(member));
    }

    void Import(void* member, const cls_Value& value) const override
    {
        cls_ImportCollection(*static_cast<Wrapper*>(member), value);
    }
};

template <class T, cls_KindEnm KindId>
using ScalarListKind = CollectionKind<cls_xpScalarList<T>, KindId, cls_ListTypeId>;

/// Writes the object of a handle, or an absent value.
template <class T, class P>
void WriteOptional(const cow_COW<T, P>& handle, const cls_WriteVisitor& visitor, const cls_FieldHandle& field)
{
    if (handle.IsNull())
    {
        visitor.Memento().PutAbsent(field);
        return;
    }
    const cls_WriteVisitor nested(visitor, field, &cow_Erased(handle), nullptr);
    handle->DBWrite(nested);
}

template <class T, class P>
cow_COW<T, P> ReadOptional(const cls_ReadVisitor& visitor, const cls_FieldHandle& field)
{
    return cow_Restored<T, P>(visitor.Memento().GetObject(field, T::TypeId()));
}

/// The part of an optional object that does not depend on its class.
class OVR_EXPORT OptionalKindBase : public cls_Kind
{
public:
    cls_KindEnm Id() const final;
    cls_AttributeType Type() const final;
    unsigned TypeId() const final;

protected:
    constexpr OptionalKindBase() = default;
    ~OptionalKindBase() = default;
};

/// An optional nested object of class `T` or one derived from it, in a handle.
template <class T, class P>
class OptionalKind final : public OptionalKindBase
{
    using Handle = cow_COW<T, P>;
    using Root = typename T::cls_RootClass;

public:
    constexpr OptionalKind() = default;

    const cls_Description* Of() const override { return &T::Description(); }

    void Write(const void* member, const cls_WriteVisitor& visitor,
               const cls_FieldHandle& field) const override
    {
        WriteOptional(*static_cast<const Handle*>(member), visitor, field);
    }

    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const override
    {
        *static_cast<Handle*>(member) = ReadOptional<T, P>(visitor, field);
    }

    cls_Value Export(const void* member) const override
    {
        const void* object = ConstObject(member);
        return object ? cls_ValueOfObject(T::Description(), object) : cls_Value();
    }

    void Import(void* member, const cls_Value& value) const override
    {
        Handle& handle = *static_cast<Handle*>(member);
        if (value.IsNull())
            handle = Handle();
        else
            handle = Handle(
                static_cast<T*>(static_cast<Root*>(cls_ObjectOfValue(T::Description(), value).Release())));
    }

    const void* ConstObject(const void* member) const override
    {
        const Root* object = static_cast<const Handle*>(member)->ConstGet();
        return object;
    }

    void* Object(void* member) const override
    {
        Handle& handle = *static_cast<Handle*>(member);
        Root* object = handle.IsNull() ? nullptr : handle.Get();
        return object;
    }
};

/// A member of an optional object whose class is not built: it is stored and read as absent.
class OVR_EXPORT PendingKindBase : public cls_Kind
{
public:
    cls_KindEnm Id() const final;
    cls_AttributeType Type() const final;
    void Write(const void* member, const cls_WriteVisitor& visitor, const cls_FieldHandle& field) const final;
    /// Throws if the object is there.
    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const final;
    cls_Value Export(const void* member) const final;
    void Import(void* member, const cls_Value& value) const final;

protected:
    constexpr PendingKindBase() = default;
    ~PendingKindBase() = default;
};

template <unsigned ClassId>
class PendingKind final : public PendingKindBase
{
public:
    constexpr PendingKind() = default;

    unsigned TypeId() const override { return ClassId; }
};

} // namespace cls_kinds

/// Stands for the handle of an optional object of a class that is not built yet. It keeps the place of the
/// attribute in the stored record, so that stores without such an object are read and written as later.
template <unsigned ClassId>
struct cls_Pending
{
    static constexpr bool IsNull() { return true; }
};

template <unsigned ClassId>
struct cls_KindOf<cls_Pending<ClassId>>
{
    static constexpr cls_kinds::PendingKind<ClassId> kind{};
};

template <>
struct cls_KindOf<int>
{
    static constexpr cls_kinds::IntKind kind{};
};

template <>
struct cls_KindOf<double>
{
    static constexpr cls_kinds::DoubleKind kind{};
};

template <>
struct cls_KindOf<bool>
{
    static constexpr cls_kinds::BoolKind kind{};
};

template <>
struct cls_KindOf<cow_String>
{
    static constexpr cls_kinds::StringKind kind{};
};

template <class E>
requires std::is_enum_v<E>
struct cls_KindOf<E>
{
    static constexpr cls_kinds::EnumKind<E> kind{};
};

template <>
struct cls_KindOf<cls_xpScalarList<bool>>
{
    static constexpr cls_kinds::ScalarListKind<bool, cls_KindEnm::ListBool> kind{};
};

template <>
struct cls_KindOf<cls_xpScalarList<double>>
{
    static constexpr cls_kinds::ScalarListKind<double, cls_KindEnm::ListDouble> kind{};
};

template <>
struct cls_KindOf<cls_xpScalarList<int>>
{
    static constexpr cls_kinds::ScalarListKind<int, cls_KindEnm::ListInt> kind{};
};

template <>
struct cls_KindOf<cls_xpScalarList<cow_String>>
{
    static constexpr cls_kinds::ScalarListKind<cow_String, cls_KindEnm::ListString> kind{};
};

template <>
struct cls_KindOf<cls_xp2DArrayDouble>
{
    static constexpr cls_kinds::CollectionKind<cls_xp2DArrayDouble, cls_KindEnm::Array2D, cls_ListTypeId>
        kind{};
};

template <>
struct cls_KindOf<cls_xpMapString2Float>
{
    static constexpr cls_kinds::CollectionKind<cls_xpMapString2Float, cls_KindEnm::MapFloat, cls_MapTypeId>
        kind{};
};

template <>
struct cls_KindOf<cls_xpMapString2Array2D>
{
    static constexpr cls_kinds::CollectionKind<cls_xpMapString2Array2D, cls_KindEnm::MapArray2D,
                                               cls_MapTypeId>
        kind{};
};

template <class T, class P>
struct cls_KindOf<cow_COW<T, P>>
{
    static constexpr cls_kinds::OptionalKind<T, P> kind{};
};
