#pragma once

#include "mdl_1DArrayList.h"
#include "mdl_MapOfCowsRepository.h"
#include "mdl_MapString2ObjCow.h"
#include "nex_canDynamicCastRef.h"

namespace cls_kinds
{

/// A repository held by value in its wrapper. It is described as a map-like collection, as the rows of old
/// show it.
template <class R>
class ContainerKind final : public cls_Kind
{
public:
    constexpr ContainerKind() = default;

    cls_KindEnm Id() const override { return cls_KindEnm::Object; }

    cls_AttributeType Type() const override { return cls_TypeObject; }

    unsigned TypeId() const override { return cls_MapTypeId; }

    cls_CollectionType Collection() const override { return cls_CollectionMapString2Obj; }

    const cls_Description* Of() const override { return &R::Description(); }

    void Write(const void* member, const cls_WriteVisitor& visitor,
               const cls_FieldHandle& field) const override
    {
        const cls_WriteVisitor nested(visitor, field, nullptr, nullptr);
        static_cast<const R*>(member)->DBWrite(nested);
    }

    void Read(void* member, const cls_ReadVisitor& visitor, const cls_FieldHandle& field) const override
    {
        const cls_ReadVisitor nested(visitor, field);
        nex_canDynamicCastRef(R::TypeId(), nested.Memento().ClassId(), __FILE__, __LINE__);
        *static_cast<R*>(member) = R(nested);
    }

    cls_Value Export(const void* member) const override
    {
        return R::Description().Export(static_cast<const mdl_Extension*>(static_cast<const R*>(member)));
    }

    void Import(void* member, const cls_Value& value) const override
    {
        R taken;
        R::Description().Import(static_cast<mdl_Extension*>(&taken), value);
        *static_cast<R*>(member) = taken;
    }
};

} // namespace cls_kinds

template <class R>
requires std::is_base_of_v<mdl_Repository, R>
struct cls_KindOf<R>
{
    static constexpr cls_kinds::ContainerKind<R> kind{};
};

/// Plugs a repository into the model: holds a copy of it.
template <class R>
class mdl_ExtensionWrapper : public mdl_DescribedExtension<mdl_ExtensionWrapper<R>, mdl_Extension>
{
    using Container = mdl_ContainerOf<R>;
    using Described = mdl_DescribedExtension<mdl_ExtensionWrapper, mdl_Extension>;

public:
    static constexpr int cls_Version = 401;

    static constexpr unsigned TypeId() { return Container::wrapperId; }

    static constexpr const char* StoredName() { return Container::wrapperName; }

    static constexpr cls_Entry cls_EntryAt(std::integral_constant<int, 0>)
    {
        return cls_Entry{
            cls_Entry::Sort::Attribute,
            -1,
            "extension",
            Container::word,
            &cls_KindOf<R>::kind,
            nullptr,
            [](void* object) -> void*
            { return &static_cast<mdl_ExtensionWrapper*>(static_cast<mdl_Extension*>(object))->extension; }};
    }

    mdl_ExtensionWrapper() { uid.AllocateUid(); }

    /// Holds a copy of `repository`.
    explicit mdl_ExtensionWrapper(const R& repository) : extension(repository) { uid.AllocateUid(); }

    explicit mdl_ExtensionWrapper(const cls_ReadVisitor& visitor) : Described(cls_ReadVisitor(visitor))
    {
        Described::Description().ReadAttributes(static_cast<mdl_Extension*>(this), visitor);
        uid = visitor.GetUid();
    }

    mdl_ExtensionWrapper(const mdl_ExtensionWrapper&) = default;
    mdl_ExtensionWrapper& operator=(const mdl_ExtensionWrapper&) = default;
    ~mdl_ExtensionWrapper() override = default;

    mdl_ExtensionWrapper* Copy() const override { return new mdl_ExtensionWrapper(*this); }

    mdl_Repository* GetValue() override { return &extension; }

    const mdl_Repository* ConstGetValue() const override { return &extension; }

    void NewUid() override
    {
        mdl_Extension::NewUid();
        uid.NewUid();
    }

    const cls_Uid& Uid() const { return uid; }

private:
    R extension;
    cls_Uid uid;
};
