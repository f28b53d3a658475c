#include "cls_ClassMetadata.h"

#include "cls_MetadataRegistrar.h"
#include "nex_Exceptions.h"

cls_ClassMetadata::cls_ClassMetadata(const cow_String& name, unsigned classId, int version,
                                     PlainConstructor plainConstructor, unsigned baseClassId)
    : name(name),
      classId(classId),
      version(version),
      plainConstructor(plainConstructor),
      baseClassId(baseClassId)
{}

cls_ClassMetadata::~cls_ClassMetadata() = default;

namespace
{

[[noreturn]] void RaiseUnable(const cow_String& name, const char* deed)
{
    cow_String text("The class ");
    text.append(name);
    text.append(deed);
    nex_CmdException<atr_String, 2>(atr_String(text), 0).Throw(__FILE__, __LINE__);
}

} // namespace

void cls_ClassMetadata::DBWrite(const void*, const cls_WriteVisitor&) const
{
    RaiseUnable(name, " is described without a way to write its objects.");
}

void cls_ClassMetadata::Delete(void* object) const
{
    if (object)
        RaiseUnable(name, " is described without a way to delete its objects.");
}

void cls_ClassMetadata::DeleteCow(cls_ErasedHandle* holder) const
{
    const cls_ClassMetadata* metadata = this;
    while (metadata && !metadata->destructor)
        metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(metadata->baseClassId);
    if (!metadata)
        RaiseUnable(name, " has no root that can delete its handles.");
    metadata->destructor(holder);
}

void* cls_ClassMetadata::Ctor(const cls_ReadVisitor& visitor) const
{
    if (!plainConstructor)
        return nullptr;
    cls_ReadVisitor& reader = const_cast<cls_ReadVisitor&>(visitor);
    return plainConstructor(reader);
}

bool cls_ClassMetadata::IsConcrete() const
{
    return plainConstructor != nullptr;
}

bool cls_ClassMetadata::DBWriteDefault(const cls_WriteVisitor&) const
{
    return false;
}

cls_ClassMetadata* cls_ClassMetadata::AddDtor(CowDestructor newDestructor)
{
    destructor = newDestructor;
    return this;
}

cls_ClassMetadata* cls_ClassMetadata::AddTableExtentQuantum(int quantum)
{
    tableExtentQuantum = quantum;
    return this;
}

cls_ClassMetadata* cls_ClassMetadata::AddAttribute(const cls_FieldHandle& field, cls_AttributeType type,
                                                   unsigned typeId, cls_CollectionType collectionType)
{
    attributes.push_back({field, type, typeId, collectionType});
    return this;
}
