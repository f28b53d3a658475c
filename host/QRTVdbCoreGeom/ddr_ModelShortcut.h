#pragma once

#include "ddr_DdbContainer.h"
#include "omu_ShortcutBase.h"

#include "QRTBasStringMode.h"

class cls_ClassRegistrar;

template <class T>
class OVR_EXPORT ddr_Shortcut;

/// The top of every path: leads to the model itself.
template <>
class OVR_EXPORT ddr_Shortcut<ddr_Model> : public omu_ShortcutBase
{
public:
    /// `ddbName` is the name of the data base that the model belongs to; it may be empty.
    explicit ddr_Shortcut(const cow_String& ddbName = cow_String());
    explicit ddr_Shortcut(const cls_ReadVisitor& visitor);
    ddr_Shortcut(const ddr_Shortcut&) = default;
    ddr_Shortcut& operator=(const ddr_Shortcut&) = default;
    ~ddr_Shortcut() override;

    bool IsPresent() const override;
    /// "model", as are both paths.
    cow_String Name() const override;
    cow_String Path() const override;
    cow_String PythonPath() const override;

    /// Name of the data base; in the encoding of the locale if `mode` is not 0.
    cow_String DdbName(QRTBasStringMode mode) const;

    ddr_Model* Get(ddr_DdbContainer& container) const { return container.GetModel(); }
    const ddr_Model* ConstGet(const ddr_DdbContainer& container) const { return container.ConstGetModel(); }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    unsigned DynTypeId() const { return TypeId(); }

    static constexpr unsigned TypeId() { return 0xA0004; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cow_String ddbName;
    cls_Uid uid;
};
