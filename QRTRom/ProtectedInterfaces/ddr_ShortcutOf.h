#pragma once

#include "ddr_ModelShortcut.h"
#include "mdl_Repository.h"
#include "nex_canDynamicCastRef.h"

#include <string>

// How a family declares its shortcut classes. A line for each class stands behind the classes and
// repositories that it speaks of, in a header of the family; below them come the aliases by which the classes
// are known and their instantiations, and the module registers the aliases with its classes:
//
//     DDR_SHORTCUT(kamC_Amplitude, 0x244000D, 0x244000F)
//     DDR_DICTIONARY_STEP(kamC_AmplitudeContainer, kamC_Amplitude, 1, 0x244000E)
//     DDR_MODEL_STEP(kamC_AmplitudeContainer, 0x2440016, Amplitudes, "...kamC_AmplitudeContainerShortcut")
//     DDR_MEMBER_STEP(kamC_Amplitude, kamC_BaselineCorrection, 2, 0x2440014, kamC_Tabular,
//                     baselineCorrection, "...kamC_BaselineCorrectionShortcut")
//
// Stored names come from the type table. A step that finds its child in another way has its description
// written out in place of the line.

/// Class ids of the holder and of the abstract step of shortcuts to a `T`.
template <class T>
struct ddr_ShortcutOf;

/// How the step number `N` from a `P` to a member of class `C` is stored, and how it finds the member:
///     id, ownerId   class id of the step, and of the class that the parent object must have
///     Word()        the member's word
///     Get, ConstGet the member of a parent, or null where it is absent
template <class P, class C, int N>
struct ddr_MemberStepOf;

/// The same for steps by name:
///     id            class id of the step
///     prefix        what stands between the parent's path and the key, as ".options"; mostly empty
///     hasPlainKeys  whether the key stands in `Path()` as it is; if not, it is escaped where it must be
///     AttributeOf   only where keys lead to attributes of the parent: see `ddr_StepClass::attributeOf`
///     Get, ConstGet the object under a key of the parent; throws through ddr_RaiseUnknown if there is none
template <class P, class C, int N>
struct ddr_DictionaryStepOf;

/// The same for steps by number; there is no prefix.
template <class P, class C, int N>
struct ddr_SequenceStepOf;

/// Throws `nex_CmdException<cow_String, 9>` with the name as its text.
[[noreturn]] OVR_EXPORT void ddr_RaiseUnknown(const cow_String& name, int line);

namespace ddr_detail
{

inline cow_String TextOfKey(const cow_String& key)
{
    return key;
}

inline cow_String TextOfKey(int key)
{
    return cow_String(key);
}

/// Finds objects in a repository by its key.
template <class P, class C>
struct RepositoryLookup
{
    static constexpr const char* prefix = "";
    static constexpr bool hasPlainKeys = true;

    template <class K>
    static C* Get(P& repository, const K& key)
    {
        RequireMember(repository, key);
        return repository.Get(key);
    }

    template <class K>
    static const C* ConstGet(const P& repository, const K& key)
    {
        RequireMember(repository, key);
        return repository.ConstGet(key);
    }

private:
    template <class K>
    static void RequireMember(const P& repository, const K& key)
    {
        if (!repository.IsMember(key))
            ddr_RaiseUnknown(TextOfKey(key), __LINE__);
    }
};

/// A repository of the model as the class `R`.
template <class R, class Repository>
auto* RepositoryAs(Repository* repository, const char* word, const char* file, int line)
{
    if (!repository)
        ddr_RaiseUnknown(word, line);
    nex_canDynamicCastRef(R::TypeId(), repository->DynTypeId(), file, line);
    using Result = std::conditional_t<std::is_const_v<Repository>, const R, R>;
    return static_cast<Result*>(repository);
}

/// A parent object as the class that has the member.
template <class Owner, class P>
auto& OwnerAs(P& parent, const char* file, int line)
{
    nex_canDynamicCastRef(Owner::TypeId(), parent.DynTypeId(), file, line);
    using Result = std::conditional_t<std::is_const_v<P>, const Owner, Owner>;
    return static_cast<Result&>(parent);
}

} // namespace ddr_detail

#define DDR_SHORTCUT(T, HolderId, StepId)                                                                    \
    template <>                                                                                              \
    struct ddr_ShortcutOf<T>                                                                                 \
    {                                                                                                        \
        static constexpr unsigned holderId = HolderId;                                                       \
        static constexpr unsigned stepId = StepId;                                                           \
    };

/// `Slot` is what follows Get in the model's accessors, `Source` the source path of the check of class.
#define DDR_MODEL_STEP(R, Id, Slot, Source)                                                                  \
    template <>                                                                                              \
    struct ddr_MemberStepOf<ddr_Model, R, 1>                                                                 \
    {                                                                                                        \
        static constexpr unsigned id = Id;                                                                   \
        static constexpr unsigned ownerId = ddr_Model::TypeId();                                             \
        static const char* Word() { return mdl_ContainerOf<R>::word; }                                       \
        static R* Get(ddr_Model& model)                                                                      \
        {                                                                                                    \
            return ddr_detail::RepositoryAs<R>(model.Get##Slot(), Word(), Source, __LINE__);                 \
        }                                                                                                    \
        static const R* ConstGet(const ddr_Model& model)                                                     \
        {                                                                                                    \
            return ddr_detail::RepositoryAs<R>(model.ConstGet##Slot(), Word(), Source, __LINE__);            \
        }                                                                                                    \
    };

/// A member that is a handle in the class `Owner`.
#define DDR_MEMBER_STEP(P, C, N, Id, Owner, Member, Source)                                                  \
    template <>                                                                                              \
    struct ddr_MemberStepOf<P, C, N>                                                                         \
    {                                                                                                        \
        static constexpr unsigned id = Id;                                                                   \
        static constexpr unsigned ownerId = Owner::TypeId();                                                 \
        static const char* Word() { return Owner::Member##Cmd(); }                                           \
        static C* Get(P& parent)                                                                             \
        {                                                                                                    \
            auto& handle = ddr_detail::OwnerAs<Owner>(parent, Source, __LINE__).Member;                      \
            return handle.IsNull() ? nullptr : handle.Get();                                                 \
        }                                                                                                    \
        static const C* ConstGet(const P& parent)                                                            \
        {                                                                                                    \
            return ddr_detail::OwnerAs<Owner>(parent, Source, __LINE__).Member.ConstGet();                   \
        }                                                                                                    \
    };

#define DDR_DICTIONARY_STEP(P, C, N, Id)                                                                     \
    template <>                                                                                              \
    struct ddr_DictionaryStepOf<P, C, N> : ddr_detail::RepositoryLookup<P, C>                                \
    {                                                                                                        \
        static constexpr unsigned id = Id;                                                                   \
    };

#define DDR_SEQUENCE_STEP(P, C, N, Id)                                                                       \
    template <>                                                                                              \
    struct ddr_SequenceStepOf<P, C, N> : ddr_detail::RepositoryLookup<P, C>                                  \
    {                                                                                                        \
        static constexpr unsigned id = Id;                                                                   \
    };
