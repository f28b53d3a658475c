#pragma once

#include "DDB_DeepCopyPtr.h"
#include "cls_KindOf.h"
#include "cls_TypeAdapter.h"
#include "cls_Unset.h"

#include <array>
#include <type_traits>
#include <utility>

// The pattern of a persistent class. A class is declared once, in its header, and nothing about an attribute
// is written twice:
//
//     class OVR_EXPORT kamC_Decay : public kamC_Amplitude
//     {
//         CLS_CONCRETE(kamC_Decay, kamC_Amplitude, 0x2440003, 203)
//         CLS_WORD(constructor, "DecayAmplitude")
//         CLS_ATTRIBUTE(double, initial, 0.0)
//
//         void AssertValid() const;
//         CLS_END
//     };
//
// and its source file has CLS_IMPLEMENT(kamC_Decay) and the rules. The order of the CLS_ATTRIBUTE lines is
// the stored order. docs/adding-a-class.md tells the whole procedure.

namespace cls_detail
{

/// What the read constructor of a base is given: a copy of the visitor, which stands on the base section. A
/// root has no base section, so nothing is copied for it.
template <class Base>
class BaseVisitor
{
public:
    explicit BaseVisitor(const cls_ReadVisitor& visitor) : copy(visitor) {}

    operator const cls_ReadVisitor&() const { return copy; }

private:
    cls_ReadVisitor copy;
};

template <>
class BaseVisitor<mem_AllocationOperators>
{
public:
    explicit BaseVisitor(const cls_ReadVisitor&) {}

    operator mem_AllocationOperators() const { return {}; }
};

/// The entries of a class in the order of its declaration.
template <class T, int... Position>
constexpr std::array<cls_Entry, sizeof...(Position)> MakeEntries(std::integer_sequence<int, Position...>)
{
    return {T::cls_EntryAt(std::integral_constant<int, Position>{})...};
}

template <class T>
inline constexpr auto entriesOf = MakeEntries<T>(std::make_integer_sequence<int, T::cls_EntryCount>{});

/// The operations of a class on objects seen as its root class.
template <class T>
struct Operations
{
    using Root = typename T::cls_RootClass;

    static const T& Of(const void* object)
    {
        return *static_cast<const T*>(static_cast<const Root*>(object));
    }

    static void* Create() { return static_cast<Root*>(new T); }

    static void* Copy(const void* object) { return static_cast<Root*>(new T(Of(object))); }

    static void Destroy(void* object) { delete static_cast<T*>(static_cast<Root*>(object)); }

    static void Write(const void* object, const cls_WriteVisitor& visitor) { Of(object).DBWrite(visitor); }

    static void AssertValid(const void* object) { Of(object).AssertValid(); }

    static unsigned DynTypeId(const void* object)
    {
        if constexpr (T::cls_IsDirect)
            return T::TypeId();
        else
            return Of(object).DynTypeId();
    }

    static const cls_Uid& Uid(const void* object) { return Of(object).Uid(); }
};

template <class Base>
const cls_Description& DescriptionOf()
{
    return Base::Description();
}

template <class T>
constexpr cls_ClassInfo MakeInfo(const char* name)
{
    using Base = typename T::cls_Base;
    cls_ClassInfo info{};
    info.name = name;
    info.id = T::TypeId();
    info.version = T::cls_Version;
    info.entries = entriesOf<T>.data();
    info.entryCount = T::cls_EntryCount;
    if constexpr (std::is_same_v<Base, mem_AllocationOperators>)
        info.baseId = cls_RootId;
    else
        info.baseId = Base::TypeId();
    if constexpr (requires { Base::Description(); })
        info.base = DescriptionOf<Base>;
    if constexpr (!std::is_abstract_v<T>)
    {
        info.create = Operations<T>::Create;
        info.copy = Operations<T>::Copy;
    }
    info.destroy = Operations<T>::Destroy;
    info.write = Operations<T>::Write;
    if constexpr (requires(const T& object) { object.AssertValid(); })
        info.assertValid = Operations<T>::AssertValid;
    info.dynTypeId = Operations<T>::DynTypeId;
    info.uid = Operations<T>::Uid;
    return info;
}

/// Writes the base section of an object, if its class has a base.
template <class T>
void WriteBase(const T& object, const cls_WriteVisitor& visitor)
{
    using Base = typename T::cls_Base;
    if constexpr (!std::is_same_v<Base, mem_AllocationOperators>)
    {
        const cls_WriteVisitor baseVisitor(visitor, Base::TypeId());
        object.Base::DBWrite(baseVisitor);
    }
}

/// Adds the metadata of a class to the registrar, and its description to the registry.
template <class T>
void Describe(cls_ClassRegistrar& registrar)
{
    using Adapter = std::conditional_t<std::is_abstract_v<T>, cls_AbsTypeAdapter<T>, cls_TypeAdapter<T>>;
    const cls_Description& description = T::Description();
    const cls_ClassInfo& info = description.Info();
    cls_ClassMetadata* metadata = registrar.AddClassMD(new Adapter(info.name, info.version, info.baseId));
    if constexpr (std::is_same_v<typename T::cls_Base, mem_AllocationOperators>)
        metadata->AddDtor(T::CowDtor);
    description.DescribeTo(*metadata);
    cls_Descriptions().Add(description);
}

} // namespace cls_detail

/// What every persistent class declares; used by the macros below, not by classes.
#define CLS_COMMON(Self, Base, Id, SchemaVersion)                                                            \
public:                                                                                                      \
    using cls_Self = Self;                                                                                   \
    using cls_Base = Base;                                                                                   \
    static constexpr int cls_FirstEntry = __COUNTER__;                                                       \
    static constexpr int cls_Version = SchemaVersion;                                                        \
    static constexpr unsigned TypeId()                                                                       \
    {                                                                                                        \
        return Id;                                                                                           \
    }                                                                                                        \
    static const cls_Description& Description();                                                             \
    static void InitializeMetadata(cls_ClassRegistrar& registrar);                                           \
    Self();                                                                                                  \
    explicit Self(const cls_ReadVisitor& visitor);                                                           \
    Self(const Self&) = default;                                                                             \
    Self& operator=(const Self&) = default;                                                                  \
    Self* DeepCopy() const;

/// What the root of a family declares beside; used by the macros below, not by classes.
#define CLS_ROOT_COMMON(Self)                                                                                \
    using cls_RootClass = Self;                                                                              \
    static void CowDtor(cls_ErasedHandle* holder)                                                            \
    {                                                                                                        \
        cow_DeleteHolder<Self>(holder);                                                                      \
    }

/// Begins the declaration of an abstract root, held through `cow_Virtual`.
#define CLS_ABSTRACT_ROOT(Self, Id, SchemaVersion)                                                           \
    CLS_ABSTRACT_ROOT_SLOTS(Self, Id, SchemaVersion)                                                         \
    CLS_SLOT_ABSTRACT_COPY                                                                                   \
    CLS_SLOT_WRITE                                                                                           \
    virtual unsigned DynTypeId() const = 0;

/// Begins the declaration of a root that has objects of its own, held through `cow_Virtual`.
#define CLS_CONCRETE_ROOT(Self, Id, SchemaVersion)                                                           \
    CLS_CONCRETE_ROOT_SLOTS(Self, Id, SchemaVersion)                                                         \
    CLS_SLOT_COPY                                                                                            \
    CLS_SLOT_WRITE                                                                                           \
    CLS_SLOT_TYPE

/// The same for a root whose virtual operations stand in another order, or have others between them: behind
/// it the class declares its operations in the order of their slots, CLS_SLOT_COPY, CLS_SLOT_WRITE and
/// CLS_SLOT_TYPE among them.
#define CLS_CONCRETE_ROOT_SLOTS(Self, Id, SchemaVersion)                                                     \
    CLS_COMMON(Self, mem_AllocationOperators, Id, SchemaVersion)                                             \
    CLS_ROOT_COMMON(Self)                                                                                    \
    static constexpr bool cls_IsDirect = false;                                                              \
    virtual ~Self() = default;

/// The same for an abstract root, with CLS_SLOT_ABSTRACT_COPY among its operations.
#define CLS_ABSTRACT_ROOT_SLOTS(Self, Id, SchemaVersion) CLS_CONCRETE_ROOT_SLOTS(Self, Id, SchemaVersion)

/// The operation that copies an object of a root.
#define CLS_SLOT_COPY                                                                                        \
    virtual cls_Self* Copy() const                                                                           \
    {                                                                                                        \
        return new cls_Self(*this);                                                                          \
    }

/// The operation that copies an object of a family, left to its classes.
#define CLS_SLOT_ABSTRACT_COPY virtual cls_Self* Copy() const = 0;

/// The operation that writes an object of a root.
#define CLS_SLOT_WRITE virtual void DBWrite(const cls_WriteVisitor& visitor) const;

/// The operation that tells the class of an object of a root.
#define CLS_SLOT_TYPE                                                                                        \
    virtual unsigned DynTypeId() const                                                                       \
    {                                                                                                        \
        return TypeId();                                                                                     \
    }

/// Begins the declaration of a root without virtual operations, held through `cow_Direct`.
#define CLS_DIRECT(Self, Id, SchemaVersion)                                                                  \
    CLS_COMMON(Self, mem_AllocationOperators, Id, SchemaVersion)                                             \
    CLS_ROOT_COMMON(Self)                                                                                    \
    static constexpr bool cls_IsDirect = true;                                                               \
    ~Self() = default;                                                                                       \
    Self* Copy() const                                                                                       \
    {                                                                                                        \
        return new Self(*this);                                                                              \
    }                                                                                                        \
    void DBWrite(const cls_WriteVisitor& visitor) const;

/// Begins the declaration of an abstract class with a base.
#define CLS_ABSTRACT(Self, Base, Id, SchemaVersion)                                                          \
    CLS_COMMON(Self, Base, Id, SchemaVersion)                                                                \
    ~Self() override = default;                                                                              \
    Self* Copy() const override = 0;                                                                         \
    void DBWrite(const cls_WriteVisitor& visitor) const override;                                            \
    unsigned DynTypeId() const override = 0;

/// Begins the declaration of a class with a base.
#define CLS_CONCRETE(Self, Base, Id, SchemaVersion)                                                          \
    CLS_COMMON(Self, Base, Id, SchemaVersion)                                                                \
    ~Self() override = default;                                                                              \
    Self* Copy() const override                                                                              \
    {                                                                                                        \
        return new Self(*this);                                                                              \
    }                                                                                                        \
    void DBWrite(const cls_WriteVisitor& visitor) const override;                                            \
    unsigned DynTypeId() const override                                                                      \
    {                                                                                                        \
        return TypeId();                                                                                     \
    }

/// One more entry of the class, at the next place.
#define CLS_ENTRY(...)                                                                                       \
    static constexpr cls_Entry cls_EntryAt(std::integral_constant<int, __COUNTER__ - cls_FirstEntry - 1>)    \
    {                                                                                                        \
        return cls_Entry{__VA_ARGS__};                                                                       \
    }

/// An attribute with every particular told: C++ type, index, name, word, default.
#define CLS_ATTRIBUTE_FULL(Type, Index, Name, Text, ...)                                                     \
    Type Name{__VA_ARGS__};                                                                                  \
    static const char* Name##Cmd()                                                                           \
    {                                                                                                        \
        return Text;                                                                                         \
    }                                                                                                        \
    CLS_ENTRY(cls_Entry::Sort::Attribute, Index, #Name, Text, &cls_KindOf<Type>::kind, nullptr,              \
              [](void* object) -> void*                                                                      \
              { return &static_cast<cls_Self*>(static_cast<cls_RootClass*>(object))->Name; })

/// An attribute whose word is its name; the default follows the name. A type with commas in it needs an
/// alias.
#define CLS_ATTRIBUTE(Type, Name, ...)                                                                       \
    CLS_ATTRIBUTE_FULL(Type, cls_Entry::NextIndex, Name, #Name __VA_OPT__(, ) __VA_ARGS__)

/// An attribute with another word.
#define CLS_ATTRIBUTE_AS(Type, Name, Text, ...)                                                              \
    CLS_ATTRIBUTE_FULL(Type, cls_Entry::NextIndex, Name, Text __VA_OPT__(, ) __VA_ARGS__)

/// An attribute with another index than the next one; those after it count on from there.
#define CLS_ATTRIBUTE_AT(Type, Index, Name, ...)                                                             \
    CLS_ATTRIBUTE_FULL(Type, Index, Name, #Name __VA_OPT__(, ) __VA_ARGS__)

/// A word that belongs to no attribute: CLS_WORD(constructor, "DecayAmplitude") gives `constructorCmd()`.
#define CLS_WORD(Name, Text)                                                                                 \
    static const char* Name##Cmd()                                                                           \
    {                                                                                                        \
        return Text;                                                                                         \
    }                                                                                                        \
    CLS_ENTRY(cls_Entry::Sort::Word, 0, #Name, Text)

/// An enumeration of the class: OMU_ENUM(TimeSpanEnm, STEP = 0, TOTAL = 1). The texts are the names, in this
/// order.
#define OMU_ENUM(Name, ...)                                                                                  \
    OMU_MEMBER_ENUM(Name, __VA_ARGS__)                                                                       \
    CLS_ENTRY(cls_Entry::Sort::Enum, 0, #Name, nullptr, nullptr,                                             \
              []() -> const omu_EnumTable* { return &omu_PrimEnum<Name, 1>::Table(); })

/// Ends the declaration of a class: its identity is its last member.
#define CLS_END                                                                                              \
    static constexpr int cls_EntryCount = __COUNTER__ - cls_FirstEntry - 1;                                  \
    const cls_Uid& Uid() const                                                                               \
    {                                                                                                        \
        return uid;                                                                                          \
    }                                                                                                        \
                                                                                                             \
private:                                                                                                     \
    cls_Uid uid;

/// Defines what the declaration promised; stands in the class's source file.
#define CLS_IMPLEMENT(Self)                                                                                  \
    Self::Self()                                                                                             \
    {                                                                                                        \
        uid.AllocateUid();                                                                                   \
    }                                                                                                        \
    Self::Self(const cls_ReadVisitor& visitor) : cls_Base(cls_detail::BaseVisitor<cls_Base>(visitor))        \
    {                                                                                                        \
        Description().ReadAttributes(static_cast<cls_RootClass*>(this), visitor);                            \
        uid = visitor.GetUid();                                                                              \
    }                                                                                                        \
    void Self::DBWrite(const cls_WriteVisitor& visitor) const                                                \
    {                                                                                                        \
        if (!visitor.StartWrite(TypeId(), uid))                                                              \
            return;                                                                                          \
        cls_detail::WriteBase(*this, visitor);                                                               \
        Description().WriteAttributes(static_cast<const cls_RootClass*>(this), visitor);                     \
    }                                                                                                        \
    Self* Self::DeepCopy() const                                                                             \
    {                                                                                                        \
        const cls_RootClass* root = this;                                                                    \
        return static_cast<Self*>(static_cast<cls_RootClass*>(                                               \
            DDB_DeepCopyPtr(root, cls_detail::Operations<Self>::DynTypeId(root))));                          \
    }                                                                                                        \
    const cls_Description& Self::Description()                                                               \
    {                                                                                                        \
        static constexpr cls_ClassInfo info = cls_detail::MakeInfo<Self>(#Self);                             \
        static const cls_Description description(info);                                                      \
        return description;                                                                                  \
    }                                                                                                        \
    void Self::InitializeMetadata(cls_ClassRegistrar& registrar)                                             \
    {                                                                                                        \
        cls_detail::Describe<Self>(registrar);                                                               \
    }
