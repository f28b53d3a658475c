#pragma once

#include "cls_Description.h"
#include "ddr_ModelShortcut.h"

#include <memory>
#include <vector>

/// A shortcut class as programs see it that know paths and not classes: where shortcuts of the class lead.
struct ddr_HolderClass
{
    unsigned id;
    /// Class id of what it leads to.
    unsigned targetId;
    /// Description of the class that it leads to; null for one that has none, as the model.
    const cls_Description* (*description)();
    // The object to which the shortcut, which must be of this class, leads, as a pointer to its root class.
    const void* (*constGet)(const omu_ShortcutBase& shortcut, const ddr_DdbContainer& container);
    void* (*get)(const omu_ShortcutBase& shortcut, ddr_DdbContainer& container);

    /// That of `ddr_Shortcut<T>`.
    template <class T>
    static ddr_HolderClass Of();
};

/// A step class as the reader of paths sees it: what stands for it in a path, and from where it leads where.
struct ddr_StepClass
{
    enum class Sort
    {
        Member,
        Dictionary,
        Sequence
    };

    /// Makes a shortcut, owned by the caller, that adds the step to `parent`, of class `parentId`.
    using Maker = omu_ShortcutBase* (*)(const omu_ShortcutBase& parent, const cow_String& key, int index);

    Sort sort = Sort::Member;
    unsigned id = 0;
    /// Class ids of the shortcuts to parent and child.
    unsigned parentId = 0;
    unsigned childId = 0;
    /// The member's word, or what stands before the key.
    const char* word = "";
    /// Whether every parent has the member, so that the step does for all classes derived from it.
    bool isOfParentItself = true;
    /// Of a step by name whose keys lead to attributes of the parent: which one it is in a parent of this
    /// class, or null where the key leads back to the parent. Throws for a key that the class does not have.
    const cls_Attribute* (*attributeOf)(const cls_Description& parent, const cow_String& key) = nullptr;
    Maker make = nullptr;
};

/// All shortcut classes and steps that are registered.
class OVR_EXPORT ddr_ShortcutRegistry : public omi_SingletonBase<ddr_ShortcutRegistry>
{
public:
    /// Holds the shortcut to the model.
    ddr_ShortcutRegistry();
    ~ddr_ShortcutRegistry();

    /// Notes a class; one that is known already is left as it is.
    void AddHolder(const ddr_HolderClass& holder);
    void AddStep(const ddr_StepClass& step);

    /// The shortcut class of this id, or null.
    const ddr_HolderClass* FindHolder(unsigned id);
    /// The steps from objects to which the shortcut class of this id leads. Of several to members of one
    /// word, the one that does for most classes comes first.
    std::vector<const ddr_StepClass*> StepsFrom(unsigned holderId);
    /// The step by name to attributes of objects of this class that begins with this word, or null.
    const ddr_StepClass* FindAttributeStep(const cls_Description& parent, const std::string& word);

private:
    std::vector<std::unique_ptr<ddr_HolderClass>> holders;
    std::vector<std::unique_ptr<ddr_StepClass>> steps;
};

/// The registry of shortcut classes.
OVR_EXPORT ddr_ShortcutRegistry& ddr_Shortcuts();

/// A shortcut whose class is known at run time only.
class OVR_EXPORT ddr_AnyShortcut
{
public:
    /// Takes ownership of the shortcut, which must be of the class given.
    ddr_AnyShortcut(const ddr_HolderClass& holder, omu_ShortcutBase* shortcut)
        : holder(&holder), shortcut(shortcut)
    {}

    const ddr_HolderClass& Class() const { return *holder; }
    const omu_ShortcutBase& Base() const { return *shortcut; }
    cow_String Name() const { return shortcut->Name(); }
    cow_String Path() const { return shortcut->Path(); }

    /// The object as a pointer to its root class, as the shortcut itself gives it.
    const void* ConstGet(const ddr_DdbContainer& container) const
    {
        return holder->constGet(*shortcut, container);
    }
    void* Get(ddr_DdbContainer& container) const { return holder->get(*shortcut, container); }

    /// The shortcut as one to a `T`, or null if it leads to another class.
    template <class T>
    const ddr_Shortcut<T>* As() const
    {
        return holder->id == ddr_Shortcut<T>::TypeId() ? static_cast<const ddr_Shortcut<T>*>(shortcut.get())
                                                       : nullptr;
    }

private:
    const ddr_HolderClass* holder;
    std::shared_ptr<const omu_ShortcutBase> shortcut;
};

namespace ddr_detail
{

/// The class as which objects of class `T` are passed without their type.
template <class T>
struct RootOf
{
    using Class = T;
};

template <class T>
requires requires
{
    typename T::cls_RootClass;
}
struct RootOf<T>
{
    using Class = typename T::cls_RootClass;
};

} // namespace ddr_detail

template <class T>
ddr_HolderClass ddr_HolderClass::Of()
{
    using Root = typename ddr_detail::RootOf<T>::Class;
    ddr_HolderClass holder;
    holder.id = ddr_Shortcut<T>::TypeId();
    holder.targetId = T::TypeId();
    holder.description = []() -> const cls_Description*
    {
        if constexpr (requires { T::Description(); })
            return &T::Description();
        else
            return nullptr;
    };
    holder.constGet = [](const omu_ShortcutBase& shortcut, const ddr_DdbContainer& container) -> const void*
    {
        const Root* object = static_cast<const ddr_Shortcut<T>&>(shortcut).ConstGet(container);
        return object;
    };
    holder.get = [](const omu_ShortcutBase& shortcut, ddr_DdbContainer& container) -> void*
    {
        Root* object = static_cast<const ddr_Shortcut<T>&>(shortcut).Get(container);
        return object;
    };
    return holder;
}
