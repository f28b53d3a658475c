#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"

#include <vector>

/// One stored attribute as the metadata describes it.
struct cls_AttributeMetadata
{
    cls_FieldHandle field;
    cls_AttributeType type;
    unsigned typeId;                   ///< Class id of a nested object or collection, 1 for a scalar.
    cls_CollectionType collectionType; ///< 0 unless the attribute is a collection.
};

/// Describes one stored form of a class: name, id, schema version, base and attributes, and how to build,
/// write and delete an object of it. Owned by the registrar that it is added to.
class OVR_EXPORT cls_ClassMetadata
{
public:
    using PlainConstructor = void* (*)(cls_ReadVisitor&);
    using CowDestructor = void (*)(cls_ErasedHandle*);

    /// `plainConstructor` may be null: the class is then built through `Ctor` of a derived metadata, or not
    /// at all.
    cls_ClassMetadata(const cow_String& name, unsigned classId, int version,
                      PlainConstructor plainConstructor, unsigned baseClassId);
    cls_ClassMetadata(const cls_ClassMetadata&) = delete;
    cls_ClassMetadata& operator=(const cls_ClassMetadata&) = delete;
    virtual ~cls_ClassMetadata();

    /// Writes `object`, which must be of this class. The plain form can't and throws.
    virtual void DBWrite(const void* object, const cls_WriteVisitor& visitor) const;
    /// Deletes `object`; nothing on null. The plain form can't and throws.
    virtual void Delete(void* object) const;
    /// Gives back one share of a heap-allocated counted holder through the destructor of this class's root.
    virtual void DeleteCow(cls_ErasedHandle* holder) const;
    /// A new object from a record, owned by the caller; null where the class can't be built by itself.
    virtual void* Ctor(const cls_ReadVisitor& visitor) const;
    /// Whether an object of this class can be built from a record.
    virtual bool IsConcrete() const;
    /// Writes an object as its default constructor makes it, for attributes that an older store does not
    /// have; false, and nothing is written, where the class can't be built so.
    virtual bool DBWriteDefault(const cls_WriteVisitor& visitor) const;

    cls_ClassMetadata* AddDtor(CowDestructor destructor);
    /// Rows by which the table grows; a hint for the store.
    cls_ClassMetadata* AddTableExtentQuantum(int quantum);
    cls_ClassMetadata* AddAttribute(const cls_FieldHandle& field, cls_AttributeType type, unsigned typeId,
                                    cls_CollectionType collectionType);

    const cow_String& Name() const { return name; }

    unsigned ClassId() const { return classId; }

    int Version() const { return version; }

    /// Class id of the base; 1 for a root.
    unsigned BaseClassId() const { return baseClassId; }

    bool HasBase() const { return baseClassId != cls_RootId; }

    CowDestructor Dtor() const { return destructor; }

    /// 0 where none was set.
    int TableExtentQuantum() const { return tableExtentQuantum; }

    /// In stored order, those of bases left out.
    const std::vector<cls_AttributeMetadata>& Attributes() const { return attributes; }

private:
    cow_String name;
    unsigned classId;
    int version;
    PlainConstructor plainConstructor;
    unsigned baseClassId;
    CowDestructor destructor = nullptr;
    int tableExtentQuantum = 0;
    std::vector<cls_AttributeMetadata> attributes;
};
