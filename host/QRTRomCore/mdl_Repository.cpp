#include "mdl_Repository.h"

#include "cls_ClassRegistrar.h"

namespace
{

constexpr int repositoryVersion = 401;

} // namespace

mdl_Repository::mdl_Repository()
{
    uid.AllocateUid();
}

mdl_Repository::mdl_Repository(const cls_ReadVisitor& visitor)
    : mdl_Extension(cls_ReadVisitor(visitor)), uid(visitor.GetUid())
{}

mdl_Repository::~mdl_Repository() = default;

mdl_Repository* mdl_Repository::GetValue()
{
    return this;
}

const mdl_Repository* mdl_Repository::ConstGetValue() const
{
    return this;
}

void mdl_Repository::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    const cls_WriteVisitor baseVisitor(visitor, mdl_Extension::TypeId());
    mdl_Extension::DBWrite(baseVisitor);
}

void mdl_Repository::NewUid()
{
    mdl_Extension::NewUid();
    uid.NewUid();
}

void mdl_Repository::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.CreateClassMD("mdl_Repository", TypeId(), repositoryVersion, nullptr, mdl_Extension::TypeId());
}
