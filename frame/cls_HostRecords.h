#pragma once

#include "cls_KindOf.h"
#include "dtmC_DatumRef.h"
#include "gsl_ModelSegment.h"
#include "mdl_PropertyTable.h"
#include "rgnC_RegionPair.h"

// Attributes that hold a record of the host: a region, a datum, a piece of geometry, a property table. A
// record is a row of its own, as a nested object is.

// A record as a value, and the reverse; one pair of overloads for each record. An import throws
// `cls_ValueError` and leaves the record as it was if the value does not fit; members that the value leaves
// out take their defaults.

/// {"name", "flag", "kinds"}
OVR_EXPORT cls_Value cls_ExportRecord(const rgnC_Region& region);
OVR_EXPORT void cls_ImportRecord(rgnC_Region& region, const cls_Value& value);
/// {"first", "second"}, and "firstFlag" and "secondFlag" where they are set
OVR_EXPORT cls_Value cls_ExportRecord(const rgnC_RegionPair& pair);
OVR_EXPORT void cls_ImportRecord(rgnC_RegionPair& pair, const cls_Value& value);
/// {"name"}
OVR_EXPORT cls_Value cls_ExportRecord(const dtmC_DatumRef& datum);
OVR_EXPORT void cls_ImportRecord(dtmC_DatumRef& datum, const cls_Value& value);
/// {"point": [x, y, z]}
OVR_EXPORT cls_Value cls_ExportRecord(const gsl_Dot& dot);
OVR_EXPORT void cls_ImportRecord(gsl_Dot& dot, const cls_Value& value);
/// {"from": [x, y, z], "to": [x, y, z]}
OVR_EXPORT cls_Value cls_ExportRecord(const gsl_ModelSegment& segment);
OVR_EXPORT void cls_ImportRecord(gsl_ModelSegment& segment, const cls_Value& value);
/// An array of rows
OVR_EXPORT cls_Value cls_ExportRecord(const mdl_PropertyTable& table);
OVR_EXPORT void cls_ImportRecord(mdl_PropertyTable& table, const cls_Value& value);

namespace cls_kinds
{

/// A record held by value.
template <class Record, cls_KindEnm KindId>
class RecordKind final : public cls_Kind
{
public:
    constexpr RecordKind() = default;

    cls_KindEnm Id() const override { return KindId; }

    cls_AttributeType Type() const override { return cls_TypeObject; }

    unsigned TypeId() const override { return Record::TypeId(); }

    void Write(const void* member, const cls_WriteVisitor& visitor,
               const cls_FieldHandle& field) const override
    {
        const cls_WriteVisitor nested(visitor, field, nullptr, nullptr);
        static_cast<const Record*>(member)->DBWrite(nested);
    }

    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const override
    {
        const cls_ReadVisitor nested(visitor, field);
        *static_cast<Record*>(member) = Record(nested);
    }

    cls_Value Export(const void* member) const override
    {
        return cls_ExportRecord(*static_cast<const Record*>(member));
    }

    void Import(void* member, const cls_Value& value) const override
    {
        cls_ImportRecord(*static_cast<Record*>(member), value);
    }
};

/// A record in a handle, which may be empty; null as a value.
template <class Record, cls_KindEnm KindId>
class OptionalRecordKind final : public cls_Kind
{
    using Policy = cow_Direct<Record>;
    using Handle = cow_COW<Record, Policy>;

public:
    constexpr OptionalRecordKind() = default;

    cls_KindEnm Id() const override { return KindId; }

    cls_AttributeType Type() const override { return cls_TypeObject; }

    unsigned TypeId() const override { return Record::TypeId(); }

    void Write(const void* member, const cls_WriteVisitor& visitor,
               const cls_FieldHandle& field) const override
    {
        WriteOptional(*static_cast<const Handle*>(member), visitor, field);
    }

    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const override
    {
        *static_cast<Handle*>(member) = ReadOptional<Record, Policy>(visitor, field);
    }

    cls_Value Export(const void* member) const override
    {
        const Handle& handle = *static_cast<const Handle*>(member);
        return handle.IsNull() ? cls_Value() : cls_ExportRecord(*handle.ConstGet());
    }

    void Import(void* member, const cls_Value& value) const override
    {
        Handle& handle = *static_cast<Handle*>(member);
        if (value.IsNull())
        {
            handle = Handle();
            return;
        }
        Record taken;
        cls_ImportRecord(taken, value);
        handle = Handle(new Record(taken));
    }
};

/// Which kind of attribute a record is, by itself and in a list; there is no list kind for most.
template <class Record>
struct RecordForm;

template <>
struct RecordForm<rgnC_Region>
{
    static constexpr cls_KindEnm kindId = cls_KindEnm::Region;
    static constexpr cls_KindEnm listKindId = cls_KindEnm::RegionList;
};

template <>
struct RecordForm<rgnC_RegionPair>
{
    static constexpr cls_KindEnm listKindId = cls_KindEnm::RegionPairList;
};

template <>
struct RecordForm<dtmC_DatumRef>
{
    static constexpr cls_KindEnm kindId = cls_KindEnm::Datum;
};

template <>
struct RecordForm<gsl_Dot>
{
    static constexpr cls_KindEnm kindId = cls_KindEnm::Dot;
};

template <>
struct RecordForm<gsl_ModelSegment>
{
    static constexpr cls_KindEnm kindId = cls_KindEnm::Segment;
    static constexpr cls_KindEnm listKindId = cls_KindEnm::SegmentList;
};

template <>
struct RecordForm<mdl_PropertyTable>
{
    static constexpr cls_KindEnm kindId = cls_KindEnm::PropertyTable;
};

template <class T>
concept Record = requires
{
    RecordForm<T>::kindId;
}
|| requires
{
    RecordForm<T>::listKindId;
};

} // namespace cls_kinds

template <cls_kinds::Record T>
struct cls_KindOf<T>
{
    static constexpr cls_kinds::RecordKind<T, cls_kinds::RecordForm<T>::kindId> kind{};
};

template <cls_kinds::Record T>
struct cls_KindOf<cow_COW<T, cow_Direct<T>>>
{
    static constexpr cls_kinds::OptionalRecordKind<T, cls_kinds::RecordForm<T>::kindId> kind{};
};
