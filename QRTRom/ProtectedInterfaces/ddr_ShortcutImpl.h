#pragma once

#include "cls_ClassRegistrar.h"
#include "cls_ExtQuant.h"
#include "ddr_ShortcutBaseImpl.h"
#include "ddr_ShortcutOf.h"
#include "typ_ArchCompTable.h"

/// Schema version of all shortcut classes.
inline constexpr int ddr_ShortcutVersion = 203;

/// The last step of a path to a `T`, whatever its kind, with the way to it. It holds no object: each Get
/// finds the object anew.
template <class T>
class OVR_EXPORT ddr_ShortcutImpl : public ddr_ShortcutBaseImpl
{
public:
    ~ddr_ShortcutImpl() override = default;

    bool IsTop() const final { return false; }
    bool IsStored() const final { return true; }
    bool IsReadOnly() const final { return false; }

    /// A copy under the same identity, owned by the caller.
    virtual ddr_ShortcutImpl* Copy() const = 0;
    /// Name of the data base at the top of the path; in the encoding of the locale if `mode` is not 0.
    virtual cow_String DdbName(QRTBasStringMode mode) const = 0;
    /// The object as it is now, or null where an optional one is absent. Throws
    /// `nex_CmdException<cow_String, 9>` with the name that is not there.
    virtual const T* ConstGet(const ddr_DdbContainer& container) const = 0;
    /// The same for changing; the object is made private to the model first.
    virtual T* Get(ddr_DdbContainer& container) const = 0;

    virtual void DBWrite(const cls_WriteVisitor& visitor) const { visitor.StartWrite(TypeId(), uid); }

    virtual unsigned DynTypeId() const = 0;

    static constexpr unsigned TypeId() { return ddr_ShortcutOf<T>::stepId; }

    static void CowDtor(cls_ErasedHandle* holder) { cow_DeleteHolder<ddr_ShortcutImpl>(holder); }

    /// No step can be built as this class alone.
    static void* Ctor(cls_ReadVisitor&) { return nullptr; }

    static void InitializeMetadata(cls_ClassRegistrar& registrar)
    {
        registrar
            .CreateClassMD(typ_ArchCompTable::GetName(TypeId()), TypeId(), ddr_ShortcutVersion, Ctor,
                           cls_RootId)
            ->AddDtor(CowDtor)
            ->AddTableExtentQuantum(omi_Singleton<cls_ExtQuant>::Instance()->ExtentQuantumConstSmall());
    }

protected:
    ddr_ShortcutImpl() { uid.AllocateUid(); }

    explicit ddr_ShortcutImpl(const cls_ReadVisitor& visitor) : uid(visitor.GetUid()) {}

    ddr_ShortcutImpl(const ddr_ShortcutImpl&) = default;
    ddr_ShortcutImpl& operator=(const ddr_ShortcutImpl&) = default;

private:
    cls_Uid uid;
};
