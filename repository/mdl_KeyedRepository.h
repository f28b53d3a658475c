#pragma once

#include "cow_BtreeUtils.h"
#include "mdl_NamedObjects.h"
#include "mdl_StoredRepository.h"

#include <charconv>

namespace mdl_detail
{

/// A key as text, and the reverse: false if the text is no key.
inline bool KeyOfText(const std::string& text, cow_String& key)
{
    key = text.c_str();
    return true;
}

inline bool KeyOfText(const std::string& text, int& key)
{
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, key);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace mdl_detail

/// The part of a repository of objects by key that does not depend on the key. Every insertion, removal and
/// writable access is entered into the history of changes.
template <class Self, class K, class T>
class mdl_KeyedRepository
    : public mdl_StoredRepository<Self, cls_xcBtree<K, cow_ArrayCOW<T, cow_Virtual<T>>, T>>,
      public mdl_NamedObjects
{
public:
    using Handle = cow_ArrayCOW<T, cow_Virtual<T>>;
    using Map = cls_xcBtree<K, Handle, T>;

    bool IsMember(const K& key) const { return this->content.ConstFind(key) != nullptr; }

    /// The object, or null if the key is absent.
    const T* ConstGet(const K& key) const
    {
        const Handle* found = this->content.ConstFind(key);
        return found ? found->ConstGet() : nullptr;
    }

    /// The object for changing, private to this repository, or null if the key is absent. Asking counts as a
    /// change, be the key there or not.
    T* Get(const K& key)
    {
        mdl_RecordModify(this->path, key);
        this->SetTimeStamp();
        Handle* found = this->content.Find(key);
        T* object = found && !found->IsNull() ? found->Get() : nullptr;
        Actual().AddToDelta(key);
        return object;
    }

    /// Takes ownership of `object`. An object that has the key already is replaced. False if the map refuses.
    bool Insert(const K& key, T* object) { return Insert(key, Handle(object)); }

    /// Inserts a copy of `object`.
    bool Insert(const K& key, const T& object) { return Insert(key, object.Copy()); }

    /// Shares the handle.
    bool Insert(const K& key, const Handle& handle)
    {
        // Either may be a part of the entry that goes.
        const K newKey(key);
        const Handle object(handle);
        this->changed = true;
        const bool isReplaced = IsMember(newKey);
        if (isReplaced)
            this->content.Remove(newKey);
        if (!this->content.InsertUnlessMember(newKey, object))
            return false;
        if (isReplaced)
            mdl_RecordRemove(this->path, newKey);
        mdl_RecordInsert(this->path, newKey);
        this->SetTimeStamp();
        Actual().AddToDelta(newKey);
        return true;
    }

    /// True if the key was there.
    bool Remove(const K& key)
    {
        // It may be the key of the entry that goes.
        const K oldKey(key);
        if (!this->content.Remove(oldKey))
            return false;
        mdl_RecordRemove(this->path, oldKey);
        this->SetTimeStamp();
        Actual().AddToDelta(oldKey);
        return true;
    }

    /// Drops all objects.
    void Clear() { this->content = cow_Btree<K, Handle>(); }

    /// The keys, in the map's order.
    cow_List<K> Keys() const { return cow_BtreeUtils<K, Handle>::cow_Keys(this->content); }

    Map& GetMap() { return this->content; }

    const Map& ConstGetMap() const { return this->content; }

    const cls_Description& ObjectRoot() const override { return T::Description(); }

    std::vector<std::string> ObjectNames() const override
    {
        std::vector<std::string> names;
        for (const K& key : Keys())
            names.push_back(cls_detail::MapForm<K>::Text(key));
        return names;
    }

    const void* ConstObject(const std::string& name) const override
    {
        K key{};
        return mdl_detail::KeyOfText(name, key) ? ConstGet(key) : nullptr;
    }

    void* Object(const std::string& name) override
    {
        K key{};
        return mdl_detail::KeyOfText(name, key) ? Get(key) : nullptr;
    }

    bool InsertObject(const std::string& name, cls_AnyObject object) override
    {
        K key{};
        return mdl_detail::KeyOfText(name, key) && Insert(key, static_cast<T*>(object.Release()));
    }

    bool RemoveObject(const std::string& name) override
    {
        K key{};
        return mdl_detail::KeyOfText(name, key) && Remove(key);
    }

    bool RenameObject(const std::string& from, const std::string& to) override
    {
        K fromKey{};
        K toKey{};
        if (!mdl_detail::KeyOfText(from, fromKey) || !mdl_detail::KeyOfText(to, toKey))
            return false;
        const Handle* found = this->content.ConstFind(fromKey);
        if (!found)
            return false;
        const Handle object = *found;
        return Remove(fromKey) && Insert(toKey, object);
    }

protected:
    using mdl_StoredRepository<Self, Map>::mdl_StoredRepository;

    mdl_KeyedRepository(const mdl_KeyedRepository&) = default;
    mdl_KeyedRepository& operator=(const mdl_KeyedRepository&) = default;
    ~mdl_KeyedRepository() override = default;

private:
    Self& Actual() { return static_cast<Self&>(*this); }
};
