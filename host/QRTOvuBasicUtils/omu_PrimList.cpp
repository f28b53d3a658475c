#include "omu_PrimList.h"

#include "cls_ClassRegistrar.h"
#include "omu_PrimAdapter.h"

namespace
{
constexpr unsigned listTypeId = 0xB000A;
constexpr int listVersion = 203;
} // namespace

omu_PrimList::omu_PrimList() : omu_PrimSequence(omu_PrimKindEnm::List)
{
    uid.AllocateUid();
}

omu_PrimList::omu_PrimList(const cls_ReadVisitor& visitor)
    : omu_PrimSequence(cls_ReadVisitor(visitor)), uid(visitor.GetUid())
{}

omu_PrimList::~omu_PrimList() = default;

unsigned omu_PrimList::TypeId()
{
    return listTypeId;
}

void omu_PrimList::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(
        new omu_PrimAdapter<omu_PrimList>("omu_PrimList", listVersion, omu_PrimSequence::TypeId()));
}

cow_String omu_PrimList::TypeString() const
{
    return "list";
}

void omu_PrimList::Accept(omu_PrimVisitor* visitor)
{
    visitor->VisitList(*this);
}

omu_PrimList* omu_PrimList::Copy() const
{
    return new omu_PrimList(*this);
}

unsigned omu_PrimList::DynTypeId() const
{
    return listTypeId;
}

void omu_PrimList::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (visitor.StartWrite(listTypeId, uid))
        omu_PrimSequence::DBWrite(cls_WriteVisitor(visitor, omu_PrimSequence::TypeId()));
}

char omu_PrimList::OpeningBracket() const
{
    return '[';
}
