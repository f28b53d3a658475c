#pragma once

#include "QRTBasI18n.h"
#include "ddr_Shortcut.h"

namespace ddr_detail
{

/// The key of a step that needs none.
struct NoKey
{
    NoKey() = default;
    explicit NoKey(cls_MementoRead&) {}

    static void Describe(cls_ClassMetadata&) {}
    void Write(cls_MementoWrite&) const {}
};

/// The name that a step by name holds.
struct NameKey
{
    explicit NameKey(const cow_String& value) : value(value) {}
    explicit NameKey(cls_MementoRead& row) : value(row.GetText(Field())) {}

    static cls_FieldHandle Field() { return cls_FieldHandle(-1, "name"); }

    static void Describe(cls_ClassMetadata& metadata)
    {
        metadata.AddAttribute(Field(), cls_TypeText, cls_RootId, cls_CollectionNone);
    }

    void Write(cls_MementoWrite& row) const { row.PutText(Field(), value); }

    cow_String value;
};

/// The number that a step by number holds.
struct IndexKey
{
    explicit IndexKey(int value) : value(value) {}
    explicit IndexKey(cls_MementoRead& row) : value(row.GetInt(Field())) {}

    static cls_FieldHandle Field() { return cls_FieldHandle(-1, "index"); }

    static void Describe(cls_ClassMetadata& metadata)
    {
        metadata.AddAttribute(Field(), cls_TypeInt, cls_RootId, cls_CollectionNone);
    }

    void Write(cls_MementoWrite& row) const { row.PutInt(Field(), value); }

    int value;
};

} // namespace ddr_detail

/// What the kinds of step share: `Self` is the step, from a `P` to a `C`, and `Key` what it finds the child
/// by.
template <class Self, class P, class C, class Key>
class OVR_EXPORT ddr_ShortcutStep : public ddr_ShortcutImpl<C>
{
public:
    ~ddr_ShortcutStep() override = default;

    cow_String Path() const override { return WithStep(parent.Path(), KeyForm::Plain); }

    cow_String PythonPath() const override { return WithStep(parent.PythonPath(), KeyForm::Python); }

    ddr_ShortcutImpl<C>* Copy() const override { return new Self(static_cast<const Self&>(*this)); }

    cow_String DdbName(QRTBasStringMode mode) const override
    {
        const cow_String name = parent.DdbName(0);
        return mode ? QRTBasI18n::ToLocale(name) : name;
    }

    unsigned DynTypeId() const override { return Self::TypeId(); }

    void DBWrite(const cls_WriteVisitor& visitor) const override
    {
        if (!visitor.StartWrite(Self::TypeId(), uid))
            return;
        {
            const cls_WriteVisitor baseVisitor(visitor, ddr_ShortcutImpl<C>::TypeId());
            ddr_ShortcutImpl<C>::DBWrite(baseVisitor);
        }
        key.Write(visitor.Memento());
        const cls_WriteVisitor nested(visitor, ParentField(), nullptr, nullptr);
        parent.DBWrite(nested);
    }

    /// The way to the parent.
    const ddr_Shortcut<P>& Parent() const { return parent; }

    static void* Ctor(cls_ReadVisitor& visitor)
    {
        return static_cast<ddr_ShortcutImpl<C>*>(new Self(visitor));
    }

    static void InitializeMetadata(cls_ClassRegistrar& registrar)
    {
        cls_ClassMetadata* metadata =
            registrar.CreateClassMD(typ_ArchCompTable::GetName(Self::TypeId()), Self::TypeId(),
                                    ddr_ShortcutVersion, Ctor, ddr_ShortcutImpl<C>::TypeId());
        metadata->AddTableExtentQuantum(Self::ExtentQuantum(*omi_Singleton<cls_ExtQuant>::Instance()));
        Key::Describe(*metadata);
        metadata->AddAttribute(ParentField(), cls_TypeObject, ddr_Shortcut<P>::TypeId(), cls_CollectionNone);
        ddr_Shortcuts().AddStep(Self::StepClass());
    }

protected:
    using KeyForm = ddr_ShortcutBaseImpl::KeyForm;

    ddr_ShortcutStep(const Key& key, const ddr_Shortcut<P>& parent) : key(key), parent(parent)
    {
        uid.AllocateUid();
    }

    explicit ddr_ShortcutStep(const cls_ReadVisitor& visitor)
        : ddr_ShortcutImpl<C>(cls_ReadVisitor(visitor)),
          key(visitor.Memento()),
          parent(cls_ReadVisitor(visitor, ParentField())),
          uid(visitor.GetUid())
    {}

    ddr_ShortcutStep(const ddr_ShortcutStep&) = default;
    ddr_ShortcutStep& operator=(const ddr_ShortcutStep&) = default;

    /// The parent object, which must be there.
    P& ParentObject(ddr_DdbContainer& container) const
    {
        P* object = parent.Get(container);
        if (!object)
            ddr_RaiseUnknown(parent.Name(), __LINE__);
        return *object;
    }

    const P& ParentObject(const ddr_DdbContainer& container) const
    {
        const P* object = parent.ConstGet(container);
        if (!object)
            ddr_RaiseUnknown(parent.Name(), __LINE__);
        return *object;
    }

    /// What programs need to know of the step, but for what its kind fills in.
    static ddr_StepClass StepClassOf(ddr_StepClass::Sort sort)
    {
        ddr_StepClass step;
        step.sort = sort;
        step.id = Self::TypeId();
        step.parentId = ddr_Shortcut<P>::TypeId();
        step.childId = ddr_Shortcut<C>::TypeId();
        return step;
    }

    const Key& KeyOf() const { return key; }

    static cls_FieldHandle ParentField() { return cls_FieldHandle(-1, "parent"); }

private:
    cow_String WithStep(cow_String path, KeyForm form) const
    {
        return path.append(static_cast<const Self&>(*this).StepText(form));
    }

    Key key;
    ddr_Shortcut<P> parent;
    cls_Uid uid;
};
