#pragma once

#include "mdl_KeyedRepository.h"

/// The model's objects of one family by name. Beyond a map it keeps the time of its last change and the names
/// changed since it was built, and enters every insertion, removal and writable access into the history of
/// changes.
template <class T>
class mdl_MapString2ObjCow : public mdl_KeyedRepository<mdl_MapString2ObjCow<T>, cow_String, T>
{
    using Keyed = mdl_KeyedRepository<mdl_MapString2ObjCow<T>, cow_String, T>;

public:
    /// Empty.
    mdl_MapString2ObjCow() : mdl_MapString2ObjCow(cow_String()) {}

    /// Empty; changes are reported under `path`.
    explicit mdl_MapString2ObjCow(const cow_String& path) : Keyed(path) {}

    /// `isChanged` is whether the repository counts as one into which something was inserted.
    explicit mdl_MapString2ObjCow(const cls_ReadVisitor& visitor, bool isChanged = false)
        : Keyed(visitor, isChanged)
    {}

    mdl_MapString2ObjCow(const mdl_MapString2ObjCow&) = default;
    mdl_MapString2ObjCow& operator=(const mdl_MapString2ObjCow&) = default;
    ~mdl_MapString2ObjCow() override = default;

    mdl_MapString2ObjCow* Copy() const override { return new mdl_MapString2ObjCow(*this); }

    mdl_MapString2ObjCow* DeepCopy() const override { return this->CopyWithoutSharing(); }

    /// Names changed since the repository was built, in the map's order. Nothing empties the list.
    cow_List<cow_String> DeltaList() { return cow_BtreeUtils<cow_String, unsigned>::cow_Keys(delta); }

    /// Notes a change of one object, or of no named one.
    void UpdateTimeStamp(const cow_String& name)
    {
        this->SetTimeStamp();
        AddToDelta(name);
    }

private:
    friend Keyed;

    void AddToDelta(const cow_String& name)
    {
        if (!name.IsEmpty())
            delta.InsertUnlessMember(name, 1u);
    }

    cow_Btree<cow_String, unsigned> delta;
};
