#include "mdl_Extension.h"

#include "cls_ClassRegistrar.h"

namespace
{

constexpr int extensionVersion = 401;

} // namespace

mdl_Extension::mdl_Extension()
{
    uid.AllocateUid();
}

mdl_Extension::mdl_Extension(const cls_ReadVisitor& visitor) : uid(visitor.GetUid()) {}

mdl_Extension::~mdl_Extension() = default;

void mdl_Extension::DBWrite(const cls_WriteVisitor& visitor) const
{
    visitor.StartWrite(TypeId(), uid);
}

void mdl_Extension::NewUid()
{
    uid.NewUid();
}

void mdl_Extension::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.CreateClassMD("mdl_Extension", TypeId(), extensionVersion, nullptr, cls_RootId)
        ->AddDtor(CowDtor);
}

void mdl_Extension::CowDtor(cls_ErasedHandle* holder)
{
    cow_DeleteHolder<mdl_Extension>(holder);
}
