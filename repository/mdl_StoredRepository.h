#pragma once

#include "mdl_Changes.h"
#include "mdl_ContainerOf.h"
#include "mdl_DescribedExtension.h"
#include "mdl_Repository.h"
#include "omi_gettimecounter.h"

namespace mdl_detail
{

/// The stored name of a repository's only attribute.
template <class Content>
inline constexpr const char* contentName = "map";
template <class Handle, class T>
inline constexpr const char* contentName<cls_xc1DArrayList<Handle, T>> = "list";

} // namespace mdl_detail

/// What the kinds of repository share: how they are stored and described, when they were changed last, and
/// under which name they report changes. `Self` is the repository, `Content` the collection that it keeps its
/// objects in. Path and time are not stored. A copy, and what a repository is assigned from, is the same row.
template <class Self, class Content>
class mdl_StoredRepository : public mdl_DescribedExtension<Self, mdl_Repository>
{
    using Container = mdl_ContainerOf<Self>;
    using Described = mdl_DescribedExtension<Self, mdl_Repository>;

public:
    static constexpr int cls_Version = 800;

    static constexpr unsigned TypeId() { return Container::containerId; }

    static constexpr const char* StoredName() { return Container::containerName; }

    /// The stored name of the class.
    static const char* DBClassName() { return StoredName(); }

    static constexpr cls_Entry cls_EntryAt(std::integral_constant<int, 0>)
    {
        return cls_Entry{
            cls_Entry::Sort::Attribute,
            -1,
            mdl_detail::contentName<Content>,
            Container::word,
            &cls_KindOf<Content>::kind,
            nullptr,
            [](void* object) -> void*
            { return &static_cast<mdl_StoredRepository*>(static_cast<mdl_Extension*>(object))->content; }};
    }

    ~mdl_StoredRepository() override = default;

    void NewUid() override
    {
        mdl_Repository::NewUid();
        uid.NewUid();
    }

    int Size() const override { return content.Count(); }

    bool IsEmpty() const { return content.Count() == 0; }

    const cls_Uid& Uid() const { return uid; }

    /// Time of the last change, by `omi_gettimecounter`.
    double TimeStamp() const { return timeStamp; }

    /// Whether anything was ever inserted.
    bool IsChanged() const { return changed; }

    /// The name under which changes are reported.
    const cow_String& Path() const { return path; }

protected:
    explicit mdl_StoredRepository(const cow_String& path) : timeStamp(omi_gettimecounter()), path(path)
    {
        uid.AllocateUid();
    }

    mdl_StoredRepository(const cls_ReadVisitor& visitor, bool isChanged)
        : Described(cls_ReadVisitor(visitor)), changed(isChanged), timeStamp(omi_gettimecounter())
    {
        Described::Description().ReadAttributes(static_cast<mdl_Extension*>(this), visitor);
        uid = visitor.GetUid();
    }

    mdl_StoredRepository(const mdl_StoredRepository&) = default;

    mdl_StoredRepository& operator=(const mdl_StoredRepository& other)
    {
        mdl_Repository::operator=(other);
        content.Restore(other.content);
        uid = other.uid;
        changed = other.changed;
        timeStamp = other.timeStamp;
        path = other.path;
        return *this;
    }

    void SetTimeStamp() { timeStamp = omi_gettimecounter(); }

    Self* CopyWithoutSharing() const
    {
        const mdl_Extension* root = this;
        return static_cast<Self*>(static_cast<mdl_Extension*>(DDB_DeepCopyPtr(root, TypeId())));
    }

    Content content;
    cls_Uid uid;
    bool changed = false;
    double timeStamp;
    cow_String path;
};
