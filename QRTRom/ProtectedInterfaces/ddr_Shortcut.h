#pragma once

#include "ddr_ShortcutImpl.h"
#include "ddr_ShortcutRegistry.h"

#include <cstring>

/// A stored path to one object of class `T` in a model, as clients hold it. Copies share the path. An empty
/// one has no texts and leads to null.
template <class T>
class OVR_EXPORT ddr_Shortcut : public omu_ShortcutBase
{
public:
    using Handle = cow_COW<ddr_ShortcutImpl<T>, cow_Virtual<ddr_ShortcutImpl<T>>>;

    /// Leads nowhere.
    ddr_Shortcut() { uid.AllocateUid(); }

    /// Takes ownership of the last step.
    explicit ddr_Shortcut(ddr_ShortcutImpl<T>* step) : impl(step) { uid.AllocateUid(); }

    explicit ddr_Shortcut(const cls_ReadVisitor& visitor)
        : impl(cow_Restored<ddr_ShortcutImpl<T>, cow_Virtual<ddr_ShortcutImpl<T>>>(
              visitor.Memento().GetObject(ImplField(), ddr_ShortcutImpl<T>::TypeId()))),
          uid(visitor.GetUid())
    {}

    ddr_Shortcut(const ddr_Shortcut&) = default;
    ddr_Shortcut& operator=(const ddr_Shortcut&) = default;
    ~ddr_Shortcut() override = default;

    bool IsPresent() const override { return !impl.IsNull(); }
    cow_String Name() const override { return IsPresent() ? impl->Name() : cow_String(); }
    cow_String Path() const override { return IsPresent() ? impl->Path() : cow_String(); }
    cow_String PythonPath() const override { return IsPresent() ? impl->PythonPath() : cow_String(); }

    /// Name of the data base at the top of the path; in the encoding of the locale if `mode` is not 0.
    cow_String DdbName(QRTBasStringMode mode) const
    {
        return IsPresent() ? impl->DdbName(mode) : cow_String();
    }

    /// The object for changing, as `ddr_ShortcutImpl` has it.
    T* Get(ddr_DdbContainer& container) const { return IsPresent() ? impl->Get(container) : nullptr; }

    /// The object for reading, as `ddr_ShortcutImpl` has it.
    const T* ConstGet(const ddr_DdbContainer& container) const
    {
        return IsPresent() ? impl->ConstGet(container) : nullptr;
    }

    /// The last step; shared by copies.
    const Handle& Impl() const { return impl; }

    /// Whether both paths read alike, whatever their identities.
    bool operator==(const ddr_Shortcut& other) const
    {
        return std::strcmp(Path().CString(), other.Path().CString()) == 0;
    }

    void DBWrite(const cls_WriteVisitor& visitor) const
    {
        if (!visitor.StartWrite(TypeId(), uid))
            return;
        if (!IsPresent())
        {
            visitor.Memento().PutAbsent(ImplField());
            return;
        }
        const cls_WriteVisitor nested(visitor, ImplField(), &cow_Erased(impl), nullptr);
        impl->DBWrite(nested);
    }

    unsigned DynTypeId() const { return TypeId(); }

    static constexpr unsigned TypeId() { return ddr_ShortcutOf<T>::holderId; }

    static void CowDtor(cls_ErasedHandle* holder) { cow_DeleteHolder<ddr_Shortcut>(holder); }

    static void* Ctor(cls_ReadVisitor& visitor) { return new ddr_Shortcut(visitor); }

    static void InitializeMetadata(cls_ClassRegistrar& registrar)
    {
        registrar
            .CreateClassMD(typ_ArchCompTable::GetName(TypeId()), TypeId(), ddr_ShortcutVersion, Ctor,
                           cls_RootId)
            ->AddDtor(CowDtor)
            ->AddTableExtentQuantum(omi_Singleton<cls_ExtQuant>::Instance()->ExtentQuantumConstSmall())
            ->AddAttribute(ImplField(), cls_TypeObject, ddr_ShortcutImpl<T>::TypeId(), cls_CollectionNone);
        ddr_Shortcuts().AddHolder(ddr_HolderClass::Of<T>());
    }

private:
    static cls_FieldHandle ImplField() { return cls_FieldHandle(-1, "impl"); }

    Handle impl;
    cls_Uid uid;
};
