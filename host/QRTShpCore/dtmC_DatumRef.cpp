#include "dtmC_DatumRef.h"

#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"

namespace
{
constexpr int datumRefVersion = 203;

cls_FieldHandle NameField()
{
    return cls_FieldHandle(0, "name");
}
} // namespace

dtmC_DatumRef::dtmC_DatumRef()
{
    uid.AllocateUid();
}

dtmC_DatumRef::dtmC_DatumRef(const cow_String& name) : name(name)
{
    uid.AllocateUid();
}

dtmC_DatumRef::dtmC_DatumRef(const cls_ReadVisitor& visitor)
    : name(visitor.Memento().GetText(NameField())), uid(visitor.GetUid())
{}

void dtmC_DatumRef::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (visitor.StartWrite(TypeId(), uid))
        visitor.Memento().PutText(NameField(), name);
}

void dtmC_DatumRef::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar.AddClassMD(new cls_RootAdapter<dtmC_DatumRef>("dtmC_DatumRef", datumRefVersion))
        ->AddAttribute(NameField(), cls_TypeText, cls_RootId, cls_CollectionNone);
}
