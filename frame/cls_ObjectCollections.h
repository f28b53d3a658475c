#pragma once

#include "cls_HostRecords.h"
#include "cow_Btree.h"
#include "cow_BtreeBuilder.h"
#include "cow_BtreeIterator.h"

/// Handle on an object as an element of a collection; the policy follows the class.
template <class T>
using cls_ElementHandle = cow_ArrayCOW<T, std::conditional_t<T::cls_IsDirect, cow_Direct<T>, cow_Virtual<T>>>;

namespace cls_detail
{

/// Writes one element: its own row, or an absent one under the root class's id.
template <class T, class P, class Writer, class Request, class... Key>
void WriteElement(const cow_ArrayCOW<T, P>& element, Writer& writer, const Request& request,
                  const Key&... key)
{
    if (element.IsNull())
    {
        writer.PutAbsent(T::TypeId(), key...);
        return;
    }
    const cls_WriteVisitor visitor(request, nullptr);
    element->DBWrite(visitor);
}

template <class Writer>
void EndCollection(Writer& writer)
{
    if (writer.HasMore())
        writer.Close();
}

template <class T, class P>
cow_ArrayCOW<T, P> TakeHandle(const cls_ErasedHandle& stored, std::type_identity<cow_ArrayCOW<T, P>>)
{
    return cow_ArrayCOW<T, P>(cow_Restored<T, P>(stored));
}

/// Throws that a list of objects of class `classId` alone holds something else.
[[noreturn]] OVR_EXPORT void RaiseForeignElement(unsigned classId);

/// The class whose handles hold objects of class `T`.
template <class T>
struct RootOf
{
    using Type = T;
};

template <class T>
requires requires
{
    typename T::cls_RootClass;
}
struct RootOf<T>
{
    using Type = typename T::cls_RootClass;
};

/// A copy of the object in a stored handle, which must be of class `T` itself.
template <class T>
T TakeValue(const cls_ErasedHandle& stored)
{
    using Root = typename RootOf<T>::Type;
    const void* referent = cow_ErasedReferent(stored);
    if (!referent)
        RaiseForeignElement(T::TypeId());
    const Root& root = *static_cast<const Root*>(referent);
    if constexpr (requires { root.DynTypeId(); })
    {
        if (root.DynTypeId() != T::TypeId())
            RaiseForeignElement(T::TypeId());
    }
    return static_cast<const T&>(root);
}

template <class T, class Writer, class Request>
void WriteElement(const T& element, Writer&, const Request& request)
{
    element.DBWrite(cls_WriteVisitor(request, nullptr));
}

/// Writes a list of handles, or of objects.
template <class List>
void WriteList(const List& list, const cls_WriteVisitor& visitor)
{
    visitor.StartWrite(cls_ListTypeId, list.Uid());
    visitor.CheckCollectionType(List::Code);
    cls_WriteListObj& writer = *visitor.Memento().OpenList(1);
    for (const auto& element : list)
        WriteElement(element, writer, cls_WriteRequestListObj(&writer));
    EndCollection(writer);
}

/// Appends what `take` makes of each stored handle.
template <class List, class Take>
void ReadList(List& list, const cls_ReadVisitor& visitor, unsigned classId, Take take)
{
    visitor.Memento().CheckCollectionType(List::Code);
    cls_ReadListObj& reader = *visitor.Memento().OpenList();
    list.Resize(static_cast<int>(reader.Length()));
    while (reader.HasRow())
        list.Append(take(reader.ReadObject(classId)));
    reader.Close();
}

} // namespace cls_detail

/// List of objects of class `T` or classes derived from it, stored as one list-like row and a row for each
/// element. An empty handle is stored as an absent element, so that positions survive.
template <class Handle, class T>
class cls_xc1DArrayList : public cls_Wrapper<cow_List<Handle>>
{
public:
    static constexpr cls_CollectionType Code = cls_CollectionListObj;

    using cls_Wrapper<cow_List<Handle>>::cls_Wrapper;
    using cls_Wrapper<cow_List<Handle>>::operator=;

    cls_xc1DArrayList() = default;

    /// Reads the row that the visitor stands on.
    explicit cls_xc1DArrayList(const cls_ReadVisitor& visitor)
    {
        this->uid = visitor.GetUid();
        cls_detail::ReadList(*this, visitor, T::TypeId(),
                             [](const cls_ErasedHandle& stored)
                             { return cls_detail::TakeHandle(stored, std::type_identity<Handle>{}); });
    }

    void DBWrite(const cls_WriteVisitor& visitor) const { cls_detail::WriteList(*this, visitor); }
};

/// List of objects that are all of class `T`, a record of the host or a class of the library, and held by
/// value. Stored as a list of handles is; an absent element, or one of a class derived from `T`, is refused
/// on reading.
template <class T>
class cls_xo1DArrayList : public cls_Wrapper<cow_List<T>>
{
public:
    static constexpr cls_CollectionType Code = cls_CollectionListObj;

    using cls_Wrapper<cow_List<T>>::cls_Wrapper;
    using cls_Wrapper<cow_List<T>>::operator=;

    cls_xo1DArrayList() = default;

    /// Reads the row that the visitor stands on.
    explicit cls_xo1DArrayList(const cls_ReadVisitor& visitor)
    {
        this->uid = visitor.GetUid();
        cls_detail::ReadList(*this, visitor, T::TypeId(),
                             [](const cls_ErasedHandle& stored) { return cls_detail::TakeValue<T>(stored); });
    }

    void DBWrite(const cls_WriteVisitor& visitor) const { cls_detail::WriteList(*this, visitor); }
};

template <class T>
using cls_xoList = cls_xo1DArrayList<T>;

namespace cls_detail
{

/// What differs between maps by text and maps by number.
template <class K>
struct MapForm;

template <>
struct MapForm<cow_String>
{
    static constexpr cls_CollectionType code = cls_CollectionMapString2Obj;
    static constexpr cls_KindEnm kindId = cls_KindEnm::MapObject;
    using Request = cls_WriteRequestMapString2Obj;

    static cls_WriteMapString2Obj& Writer(const cls_WriteVisitor& visitor)
    {
        return *visitor.Memento().OpenMapString2Obj();
    }

    static cls_ReadMapString2Obj& Reader(const cls_ReadVisitor& visitor)
    {
        return *visitor.Memento().OpenMapString2Obj();
    }

    static std::string Text(const cow_String& key) { return key.CString(); }

    static cow_String Key(const std::string& text) { return cow_String(text.c_str()); }
};

template <>
struct MapForm<int>
{
    static constexpr cls_CollectionType code = cls_CollectionMapInt2Obj;
    static constexpr cls_KindEnm kindId = cls_KindEnm::MapObjectInt;
    using Request = cls_WriteRequestMapInt2Obj;

    static cls_WriteMapInt2Obj& Writer(const cls_WriteVisitor& visitor)
    {
        return *visitor.Memento().OpenMapInt2Obj();
    }

    static cls_ReadMapInt2Obj& Reader(const cls_ReadVisitor& visitor)
    {
        return *visitor.Memento().OpenMapInt2Obj();
    }

    static std::string Text(int key) { return std::to_string(key); }

    /// Throws `cls_ValueError` unless the text is an integer.
    OVR_EXPORT static int Key(const std::string& text);
};

} // namespace cls_detail

/// Map of objects of class `T` or classes derived from it by text or number, stored as one map-like row and a
/// row for each object, in ascending order of keys.
template <class K, class Handle, class T>
class cls_xcBtree : public cls_Wrapper<cow_Btree<K, Handle>>
{
    using Form = cls_detail::MapForm<K>;

public:
    static constexpr cls_CollectionType Code = Form::code;

    using cls_Wrapper<cow_Btree<K, Handle>>::cls_Wrapper;
    using cls_Wrapper<cow_Btree<K, Handle>>::operator=;

    cls_xcBtree() = default;

    /// Reads the row that the visitor stands on; in linear time when the keys come in order.
    explicit cls_xcBtree(const cls_ReadVisitor& visitor)
    {
        this->uid = visitor.GetUid();
        visitor.Memento().CheckCollectionType(Code);
        auto& reader = Form::Reader(visitor);
        cow_BtreeBuilder<K, Handle> builder;
        while (reader.HasRow())
        {
            const Handle element =
                cls_detail::TakeHandle(reader.ReadObject(T::TypeId()), std::type_identity<Handle>{});
            builder.Add(reader.ReadKey(), element);
        }
        reader.Close();
        cow_Btree<K, Handle>::operator=(builder.Build());
    }

    void DBWrite(const cls_WriteVisitor& visitor) const
    {
        visitor.StartWrite(cls_MapTypeId, this->uid);
        visitor.CheckCollectionType(Code);
        auto& writer = Form::Writer(visitor);
        cow_BtreeIterator<K, Handle> entry(*this);
        for (bool there = entry.First(); there; there = entry.Next())
        {
            const typename Form::Request request(&writer, entry.Key());
            cls_detail::WriteElement(entry.Value(), writer, request, entry.Key());
        }
        cls_detail::EndCollection(writer);
    }
};

namespace cls_kinds
{

/// An element that may be absent as a value: null, or the object by its actual class.
template <class T, class Handle>
cls_Value ExportElement(const Handle& element)
{
    if (element.IsNull())
        return cls_Value();
    return cls_ValueOfObject(T::Description(), element.ConstGet());
}

/// An object held by value.
template <class T>
cls_Value ExportValue(const T& object)
{
    if constexpr (Record<T>)
        return cls_ExportRecord(object);
    else
        return T::Description().Export(static_cast<const typename T::cls_RootClass*>(&object));
}

template <class T>
T ImportValue(const std::string& step, const cls_Value& value)
{
    try
    {
        if constexpr (Record<T>)
        {
            T taken;
            cls_ImportRecord(taken, value);
            return taken;
        }
        else
        {
            const cls_AnyObject taken = cls_ObjectOfValue(T::Description(), value);
            if (taken.Description().Id() != T::TypeId())
                cls_RaiseUnexpected((std::string("an object of class ") + T::Description().Name()).c_str(),
                                    value);
            return static_cast<const T&>(*static_cast<const typename T::cls_RootClass*>(taken.Get()));
        }
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within(step);
    }
}

template <class T, class Handle>
Handle ImportElement(const std::string& step, const cls_Value& value)
{
    if (value.IsNull())
        return Handle();
    try
    {
        return Handle(static_cast<T*>(cls_ObjectOfValue(T::Description(), value).Release()));
    }
    catch (const cls_ValueError& error)
    {
        throw error.Within(step);
    }
}

} // namespace cls_kinds

template <class Handle, class T>
cls_Value cls_ExportCollection(const cls_xc1DArrayList<Handle, T>& list)
{
    cls_Value::Array values;
    for (const Handle& element : list)
        values.push_back(cls_kinds::ExportElement<T>(element));
    return values;
}

template <class Handle, class T>
void cls_ImportCollection(cls_xc1DArrayList<Handle, T>& list, const cls_Value& value)
{
    cow_List<Handle> taken;
    for (const cls_Value& element : cls_ArrayOfValue(value))
        taken.Append(cls_kinds::ImportElement<T, Handle>('[' + std::to_string(taken.Count()) + ']', element));
    list = taken;
}

template <class T>
cls_Value cls_ExportCollection(const cls_xo1DArrayList<T>& list)
{
    cls_Value::Array values;
    for (const T& element : list)
        values.push_back(cls_kinds::ExportValue(element));
    return values;
}

template <class T>
void cls_ImportCollection(cls_xo1DArrayList<T>& list, const cls_Value& value)
{
    cow_List<T> taken;
    for (const cls_Value& element : cls_ArrayOfValue(value))
        taken.Append(cls_kinds::ImportValue<T>('[' + std::to_string(taken.Count()) + ']', element));
    list = taken;
}

template <class K, class Handle, class T>
cls_Value cls_ExportCollection(const cls_xcBtree<K, Handle, T>& map)
{
    cls_Value::Object members;
    cow_BtreeIterator<K, Handle> entry(map);
    for (bool there = entry.First(); there; there = entry.Next())
        members.emplace_back(cls_detail::MapForm<K>::Text(entry.Key()),
                             cls_kinds::ExportElement<T>(entry.Value()));
    return members;
}

template <class K, class Handle, class T>
void cls_ImportCollection(cls_xcBtree<K, Handle, T>& map, const cls_Value& value)
{
    const cls_Value::Object* members = value.AsObject();
    if (!members)
        cls_RaiseUnexpected("an object", value);
    cow_Btree<K, Handle> taken;
    for (const auto& [name, member] : *members)
    {
        const std::string step = "['" + name + "']";
        if (!taken.InsertUnlessMember(cls_detail::MapForm<K>::Key(name),
                                      cls_kinds::ImportElement<T, Handle>(step, member)))
            throw cls_ValueError(step, "the name stands twice");
    }
    map = taken;
}

template <class Handle, class T>
struct cls_KindOf<cls_xc1DArrayList<Handle, T>>
{
    static constexpr cls_kinds::CollectionKind<cls_xc1DArrayList<Handle, T>, cls_KindEnm::ListObject,
                                               cls_ListTypeId, T>
        kind{};
};

template <class T>
struct cls_KindOf<cls_xo1DArrayList<T>>
{
    static constexpr cls_kinds::CollectionKind<cls_xo1DArrayList<T>, cls_KindEnm::ListObject, cls_ListTypeId,
                                               T>
        kind{};
};

template <cls_kinds::Record T>
struct cls_KindOf<cls_xo1DArrayList<T>>
{
    static constexpr cls_kinds::CollectionKind<cls_xo1DArrayList<T>, cls_kinds::RecordForm<T>::listKindId,
                                               cls_ListTypeId>
        kind{};
};

template <class K, class Handle, class T>
struct cls_KindOf<cls_xcBtree<K, Handle, T>>
{
    static constexpr cls_kinds::CollectionKind<cls_xcBtree<K, Handle, T>, cls_detail::MapForm<K>::kindId,
                                               cls_MapTypeId, T>
        kind{};
};
