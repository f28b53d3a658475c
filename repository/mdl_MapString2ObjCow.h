#pragma once

#include "cls_Class.h"
#include "cls_ObjectCollections.h"
#include "cow_BtreeUtils.h"
#include "mdl_ContainerOf.h"
#include "mdl_NamedObjects.h"
#include "mdl_Repository.h"
#include "omi_gettimecounter.h"

/// The model's objects of one family by name. Beyond a map it keeps the time of its last change and the names
/// changed since it was built.
template <class T>
class mdl_MapString2ObjCow : public mdl_Repository, public mdl_NamedObjects
{
    using Container = mdl_ContainerOf<T>;

public:
    using Handle = cow_ArrayCOW<T, cow_Virtual<T>>;
    using Map = cls_xcBtree<cow_String, Handle, T>;
    using cls_RootClass = mdl_Extension;
    using cls_Base = mdl_Repository;

    static constexpr bool cls_IsDirect = false;
    static constexpr int cls_Version = 800;
    static constexpr int cls_EntryCount = 1;

    static constexpr unsigned TypeId() { return Container::containerId; }

    /// The stored name of the class.
    static const char* DBClassName() { return Container::containerName; }

    static constexpr cls_Entry cls_EntryAt(std::integral_constant<int, 0>)
    {
        return cls_Entry{
            cls_Entry::Sort::Attribute,
            -1,
            "map",
            Container::word,
            &cls_KindOf<Map>::kind,
            nullptr,
            [](void* object) -> void*
            { return &static_cast<mdl_MapString2ObjCow*>(static_cast<mdl_Extension*>(object))->map; }};
    }

    static const cls_Description& Description()
    {
        static constexpr cls_ClassInfo info =
            cls_detail::MakeInfo<mdl_MapString2ObjCow>(Container::containerName);
        static const cls_Description description(info);
        return description;
    }

    static void InitializeMetadata(cls_ClassRegistrar& registrar)
    {
        cls_detail::Describe<mdl_MapString2ObjCow>(registrar);
    }

    /// Empty.
    mdl_MapString2ObjCow() : mdl_MapString2ObjCow(cow_String()) {}

    /// Empty; changes are reported under `path`.
    explicit mdl_MapString2ObjCow(const cow_String& path) : timeStamp(omi_gettimecounter()), path(path)
    {
        uid.AllocateUid();
    }

    explicit mdl_MapString2ObjCow(const cls_ReadVisitor& visitor)
        : mdl_Repository(cls_ReadVisitor(visitor)), timeStamp(omi_gettimecounter())
    {
        Description().ReadAttributes(static_cast<mdl_Extension*>(this), visitor);
        uid = visitor.GetUid();
    }

    mdl_MapString2ObjCow(const mdl_MapString2ObjCow&) = default;
    mdl_MapString2ObjCow& operator=(const mdl_MapString2ObjCow&) = default;
    ~mdl_MapString2ObjCow() override = default;

    mdl_MapString2ObjCow* Copy() const override { return new mdl_MapString2ObjCow(*this); }

    unsigned DynTypeId() const override { return TypeId(); }

    void DBWrite(const cls_WriteVisitor& visitor) const override
    {
        if (!visitor.StartWrite(TypeId(), uid))
            return;
        cls_detail::WriteBase(*this, visitor);
        Description().WriteAttributes(static_cast<const mdl_Extension*>(this), visitor);
    }

    void NewUid() override
    {
        mdl_Repository::NewUid();
        uid.NewUid();
    }

    int Size() const override { return map.Count(); }

    mdl_MapString2ObjCow* DeepCopy() const override
    {
        const mdl_Extension* root = this;
        return static_cast<mdl_MapString2ObjCow*>(
            static_cast<mdl_Extension*>(DDB_DeepCopyPtr(root, TypeId())));
    }

    const cls_Uid& Uid() const { return uid; }

    bool IsEmpty() const { return map.Count() == 0; }

    bool IsMember(const cow_String& name) const { return map.ConstFind(name) != nullptr; }

    /// The object, or null if the name is absent.
    const T* ConstGet(const cow_String& name) const
    {
        const Handle* found = map.ConstFind(name);
        return found ? found->ConstGet() : nullptr;
    }

    /// The object for changing, private to this repository, or null if the name is absent. Asking counts as a
    /// change.
    T* Get(const cow_String& name)
    {
        UpdateTimeStamp(name);
        Handle* found = map.Find(name);
        return found && !found->IsNull() ? found->Get() : nullptr;
    }

    /// Takes ownership of `object`. An object that has the name already is replaced. False if the map
    /// refuses.
    bool Insert(const cow_String& name, T* object) { return Insert(name, Handle(object)); }

    /// Inserts a copy of `object`.
    bool Insert(const cow_String& name, const T& object) { return Insert(name, object.Copy()); }

    /// Shares the handle.
    bool Insert(const cow_String& name, const Handle& handle)
    {
        changed = true;
        if (IsMember(name))
            map.Remove(name);
        if (!map.InsertUnlessMember(name, handle))
            return false;
        UpdateTimeStamp(name);
        return true;
    }

    /// True if the name was there.
    bool Remove(const cow_String& name)
    {
        if (!map.Remove(name))
            return false;
        UpdateTimeStamp(name);
        return true;
    }

    /// Takes content and identities of `stored`, as reading does.
    void Restore(const mdl_MapString2ObjCow& stored)
    {
        Map storedMap(stored.map);
        *this = stored;
        map.Restore(storedMap);
    }

    /// Drops all objects.
    void Clear() { map = cow_Btree<cow_String, Handle>(); }

    /// The names, in the map's order.
    cow_List<cow_String> Keys() const { return cow_BtreeUtils<cow_String, Handle>::cow_Keys(map); }

    Map& GetMap() { return map; }

    const Map& ConstGetMap() const { return map; }

    const cls_Description& ObjectRoot() const override { return T::Description(); }

    std::vector<std::string> ObjectNames() const override
    {
        std::vector<std::string> names;
        for (const cow_String& name : Keys())
            names.emplace_back(name.CString());
        return names;
    }

    const void* ConstObject(const std::string& name) const override { return ConstGet(name.c_str()); }

    void* Object(const std::string& name) override { return Get(name.c_str()); }

    bool InsertObject(const std::string& name, cls_AnyObject object) override
    {
        return Insert(name.c_str(), static_cast<T*>(object.Release()));
    }

    bool RemoveObject(const std::string& name) override { return Remove(name.c_str()); }

    bool RenameObject(const std::string& from, const std::string& to) override
    {
        const Handle* found = map.ConstFind(from.c_str());
        if (!found)
            return false;
        const Handle object = *found;
        return Remove(from.c_str()) && Insert(to.c_str(), object);
    }

    /// Names changed since the repository was built, in order.
    cow_List<cow_String> DeltaList() { return cow_BtreeUtils<cow_String, unsigned>::cow_Keys(delta); }

    /// Notes a change of one object, or of no named one.
    void UpdateTimeStamp(const cow_String& name)
    {
        timeStamp = omi_gettimecounter();
        if (!name.IsEmpty())
            delta.InsertUnlessMember(name, 1u);
    }

    /// Time of the last change, by `omi_gettimecounter`.
    double TimeStamp() const { return timeStamp; }

    /// Whether anything was ever inserted.
    bool IsChanged() const { return changed; }

    /// The name under which changes are reported.
    const cow_String& Path() const { return path; }

private:
    Map map;
    cls_Uid uid;
    bool changed = false;
    cow_List<cow_String> keys;
    double timeStamp;
    cow_Btree<cow_String, unsigned> delta;
    cow_String path;
};
