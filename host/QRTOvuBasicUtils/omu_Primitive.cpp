#include "omu_Primitive.h"

#include "cls_ClassRegistrar.h"

namespace
{
constexpr unsigned primitiveTypeId = 0xB0001;
constexpr int primitiveVersion = 203;
constexpr const char* kindField = "kind";
} // namespace

omu_PrimVisitor::~omu_PrimVisitor() = default;

omu_Primitive::omu_Primitive(omu_PrimKindEnm kind) : kind(kind)
{
    uid.AllocateUid();
}

omu_Primitive::omu_Primitive(const cls_ReadVisitor& visitor)
    : kind(static_cast<omu_PrimKindEnm>(visitor.Memento().GetInt(cls_FieldHandle(0, kindField)))),
      uid(visitor.GetUid())
{}

omu_Primitive::~omu_Primitive() = default;

unsigned omu_Primitive::TypeId()
{
    return primitiveTypeId;
}

void omu_Primitive::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.CreateClassMD("omu_Primitive", primitiveTypeId, primitiveVersion, nullptr, cls_RootId)
        ->AddDtor(cow_DeleteHolder<omu_Primitive>)
        ->AddAttribute(cls_FieldHandle(0, kindField), cls_TypeInt, cls_RootId, cls_CollectionNone);
}

cow_String omu_Primitive::AsRepr() const
{
    return AsString(0);
}

void omu_Primitive::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (visitor.StartWrite(primitiveTypeId, uid))
        visitor.Memento().PutInt(cls_FieldHandle(0, kindField), static_cast<int>(kind));
}
