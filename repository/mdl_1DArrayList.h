#pragma once

#include "mdl_StoredRepository.h"

/// Objects of one family by position. It keeps the time of its last change and enters every insertion,
/// removal and writable access into the history of changes, with the position where a repository by name has
/// the name.
template <class E, class T>
class mdl_1DArrayList : public mdl_StoredRepository<mdl_1DArrayList<E, T>, cls_xc1DArrayList<E, T>>
{
    using Stored = mdl_StoredRepository<mdl_1DArrayList<E, T>, cls_xc1DArrayList<E, T>>;

public:
    using Handle = E;
    using List = cls_xc1DArrayList<E, T>;

    /// Empty.
    mdl_1DArrayList() : mdl_1DArrayList(cow_String()) {}

    /// Empty; changes are reported under `path`.
    explicit mdl_1DArrayList(const cow_String& path) : Stored(path) {}

    /// `isChanged` is whether the repository counts as one into which something was inserted.
    explicit mdl_1DArrayList(const cls_ReadVisitor& visitor, bool isChanged = false)
        : Stored(visitor, isChanged)
    {}

    mdl_1DArrayList(const mdl_1DArrayList&) = default;
    mdl_1DArrayList& operator=(const mdl_1DArrayList&) = default;
    ~mdl_1DArrayList() override = default;

    mdl_1DArrayList* Copy() const override { return new mdl_1DArrayList(*this); }

    mdl_1DArrayList* DeepCopy() const override { return this->CopyWithoutSharing(); }

    /// Whether there is such a position.
    bool IsMember(int position) const { return position >= 0 && position < this->Size(); }

    /// The object, or null if there is no such position.
    const T* ConstGet(int position) const
    {
        return IsMember(position) ? this->content[position].ConstGet() : nullptr;
    }

    /// The object for changing, private to this repository, or null if there is no such position. Asking
    /// counts as a change, be the position there or not.
    T* Get(int position)
    {
        mdl_RecordModify(this->path, position);
        this->SetTimeStamp();
        if (!IsMember(position) || this->content[position].IsNull())
            return nullptr;
        return this->content.Get(position)->Get();
    }

    /// Puts the object in front of the one at `position`, or behind the last one; takes ownership. False, and
    /// the object is deleted, if there is no such place.
    bool Insert(int position, T* object) { return Insert(position, Handle(object)); }

    /// Inserts a copy of `object`.
    bool Insert(int position, const T& object) { return Insert(position, object.Copy()); }

    /// Shares the handle.
    bool Insert(int position, const Handle& handle)
    {
        this->changed = true;
        if (position < 0 || position > this->Size())
            return false;
        this->content.InsertIndex(position, handle);
        mdl_RecordInsert(this->path, position);
        this->SetTimeStamp();
        return true;
    }

    /// Takes the object at the position out; those behind it move up. True if it was there.
    bool Remove(int position)
    {
        if (!IsMember(position))
            return false;
        this->content.RemoveIndex(position);
        mdl_RecordRemove(this->path, position);
        this->SetTimeStamp();
        return true;
    }

    /// Drops all objects.
    void Clear() { this->content = cow_List<E>(); }

    List& GetList() { return this->content; }

    const List& ConstGetList() const { return this->content; }

    /// Notes a change.
    void UpdateTimeStamp() { this->SetTimeStamp(); }
};
