#include "rgnC_Region.h"

#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"

namespace
{
constexpr int regionVersion = 203;

cls_FieldHandle NameField()
{
    return cls_FieldHandle(0, "name");
}

cls_FieldHandle FlagField()
{
    return cls_FieldHandle(1, "flag");
}

cls_FieldHandle KindsField()
{
    return cls_FieldHandle(2, "kinds");
}
} // namespace

rgnC_Region::rgnC_Region()
{
    uid.AllocateUid();
}

rgnC_Region::rgnC_Region(const cow_String& name, int flag, int kinds) : name(name), flag(flag), kinds(kinds)
{
    uid.AllocateUid();
}

rgnC_Region::rgnC_Region(const cls_ReadVisitor& visitor)
    : name(visitor.Memento().GetText(NameField())),
      flag(visitor.Memento().GetInt(FlagField())),
      kinds(visitor.Memento().GetInt(KindsField())),
      uid(visitor.GetUid())
{}

bool rgnC_Region::IsOfType(rgnC_RegionType type) const
{
    switch (type)
    {
    case rgnC_FlaggedRegions:
        return flag != 0;
    case rgnC_UnflaggedRegions:
        return flag == 0;
    case rgnC_AllRegions:
        return true;
    }
    return false;
}

void rgnC_Region::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (!visitor.StartWrite(TypeId(), uid))
        return;
    visitor.Memento().PutText(NameField(), name);
    visitor.Memento().PutInt(FlagField(), flag);
    visitor.Memento().PutInt(KindsField(), kinds);
}

void rgnC_Region::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new cls_RootAdapter<rgnC_Region>("rgnC_Region", regionVersion))
        ->AddAttribute(NameField(), cls_TypeText, cls_RootId, cls_CollectionNone)
        ->AddAttribute(FlagField(), cls_TypeInt, cls_RootId, cls_CollectionNone)
        ->AddAttribute(KindsField(), cls_TypeInt, cls_RootId, cls_CollectionNone);
}
