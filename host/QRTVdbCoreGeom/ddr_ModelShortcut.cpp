#include "ddr_ModelShortcut.h"

#include "QRTBasI18n.h"
#include "cls_ClassRegistrar.h"
#include "cls_RootAdapter.h"

namespace
{

constexpr int modelShortcutVersion = 203;

cls_FieldHandle DdbNameField()
{
    return cls_FieldHandle(-1, "ddbName");
}

} // namespace

ddr_Shortcut<ddr_Model>::ddr_Shortcut(const cow_String& ddbName) : ddbName(ddbName)
{
    uid.AllocateUid();
}

ddr_Shortcut<ddr_Model>::ddr_Shortcut(const cls_ReadVisitor& visitor)
    : ddbName(visitor.Memento().GetText(DdbNameField())), uid(visitor.GetUid())
{}

ddr_Shortcut<ddr_Model>::~ddr_Shortcut() = default;

bool ddr_Shortcut<ddr_Model>::IsPresent() const
{
    return true;
}

cow_String ddr_Shortcut<ddr_Model>::Name() const
{
    return "model";
}

cow_String ddr_Shortcut<ddr_Model>::Path() const
{
    return Name();
}

cow_String ddr_Shortcut<ddr_Model>::PythonPath() const
{
    return Name();
}

cow_String ddr_Shortcut<ddr_Model>::DdbName(QRTBasStringMode mode) const
{
    return mode ? QRTBasI18n::ToLocale(ddbName) : ddbName;
}

void ddr_Shortcut<ddr_Model>::DBWrite(const cls_WriteVisitor& visitor) const
{
    if (visitor.StartWrite(TypeId(), uid))
        visitor.Memento().PutText(DdbNameField(), ddbName);
}

void ddr_Shortcut<ddr_Model>::InitializeMetadata(cls_ClassRegistrar& registrar)
{
    registrar
        .AddClassMD(new cls_RootAdapter<ddr_Shortcut<ddr_Model>>("ddr_ModelShortcut", modelShortcutVersion))
        ->AddAttribute(DdbNameField(), cls_TypeText, cls_RootId, cls_CollectionNone);
}
