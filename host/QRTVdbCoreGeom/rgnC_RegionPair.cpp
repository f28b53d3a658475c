#include "rgnC_RegionPair.h"

#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"

namespace
{
constexpr int regionPairVersion = 203;

cls_FieldHandle FirstField()
{
    return cls_FieldHandle(0, "first");
}

cls_FieldHandle SecondField()
{
    return cls_FieldHandle(1, "second");
}

cls_FieldHandle FirstFlagField()
{
    return cls_FieldHandle(2, "firstFlag");
}

cls_FieldHandle SecondFlagField()
{
    return cls_FieldHandle(3, "secondFlag");
}

void WriteRegion(const cls_WriteVisitor& visitor, const cls_FieldHandle& field, const rgnC_Region& region)
{
    const cls_WriteVisitor nested(visitor, field, nullptr, nullptr);
    region.DBWrite(nested);
}
} // namespace

rgnC_RegionPair::rgnC_RegionPair()
{
    uid.AllocateUid();
}

rgnC_RegionPair::rgnC_RegionPair(const rgnC_Region& first, const rgnC_Region& second, bool firstFlag,
                                 bool secondFlag)
    : first(first), second(second), firstFlag(firstFlag), secondFlag(secondFlag)
{
    uid.AllocateUid();
}

rgnC_RegionPair::rgnC_RegionPair(const cls_ReadVisitor& visitor)
    : first(cls_ReadVisitor(visitor, FirstField())),
      second(cls_ReadVisitor(visitor, SecondField())),
      firstFlag(visitor.Memento().GetBool(FirstFlagField())),
      secondFlag(visitor.Memento().GetBool(SecondFlagField())),
      uid(visitor.GetUid())
{}

void rgnC_RegionPair::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    WriteRegion(visitor, FirstField(), first);
    WriteRegion(visitor, SecondField(), second);
    visitor.Memento().PutBool(FirstFlagField(), firstFlag);
    visitor.Memento().PutBool(SecondFlagField(), secondFlag);
}

void rgnC_RegionPair::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new cls_RootAdapter<rgnC_RegionPair>("rgnC_RegionPair", regionPairVersion))
        ->AddAttribute(FirstField(), cls_TypeObject, rgnC_Region::TypeId(), cls_CollectionNone)
        ->AddAttribute(SecondField(), cls_TypeObject, rgnC_Region::TypeId(), cls_CollectionNone)
        ->AddAttribute(FirstFlagField(), cls_TypeBool, cls_RootId, cls_CollectionNone)
        ->AddAttribute(SecondFlagField(), cls_TypeBool, cls_RootId, cls_CollectionNone);
}
