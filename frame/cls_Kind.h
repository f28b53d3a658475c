#pragma once

#include "cls_ReadVisitor.h"
#include "cls_Value.h"
#include "cls_WriteVisitor.h"
#include "omu_EnumTable.h"

class cls_Description;

/// What an attribute is, as programs and the catalogue name it.
enum class OVR_EXPORT cls_KindEnm : int
{
    Int,
    Double,
    String,
    Bool,
    Enum,
    Optional,
    Object,
    ListInt,
    ListDouble,
    ListBool,
    ListString,
    ListObject,
    MapObject,
    MapObjectInt,
    Array2D,
    MapArray2D,
    MapFloat,
    Table,
    PropertyTable,
    Region,
    RegionList,
    RegionPairList,
    Datum,
    Segment,
    SegmentList,
    Dot,
    Pending
};

/// Everything that can be done with a member of one C++ type without knowing the class that has it: writing,
/// reading, showing, taking from a value. There is one object of each kind, and none for each class; `member`
/// always points at the member itself.
class OVR_EXPORT cls_Kind
{
public:
    virtual cls_KindEnm Id() const = 0;
    /// The kind's name in the catalogue, as "list_double".
    const char* Name() const;
    virtual cls_AttributeType Type() const = 0;
    /// Class id in the metadata: that of the nested class or of the collection, 1 for a scalar.
    virtual unsigned TypeId() const;
    virtual cls_CollectionType Collection() const;
    /// Description of the nested class or of the elements' root class, or null.
    virtual const cls_Description* Of() const;
    /// The table of an enumeration, or null.
    virtual const omu_EnumTable* Enum() const;
    /// The object in a handle, seen as its root class: to read, or to write, private to the handle from then
    /// on. Null where the handle is empty, and for any other kind of member.
    virtual const void* ConstObject(const void* member) const;
    virtual void* Object(void* member) const;

    virtual void Write(const void* member, const cls_WriteVisitor& visitor,
                       const cls_FieldHandle& field) const = 0;
    virtual void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const = 0;
    virtual cls_Value Export(const void* member) const = 0;
    /// Throws `cls_ValueError` and leaves the member as it was if the value does not fit.
    virtual void Import(void* member, const cls_Value& value) const = 0;

protected:
    constexpr cls_Kind() = default;
    cls_Kind(const cls_Kind&) = delete;
    cls_Kind& operator=(const cls_Kind&) = delete;
    ~cls_Kind() = default;
};
