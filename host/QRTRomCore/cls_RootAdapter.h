#pragma once

#include "cls_ClassMetadata.h"

/// Metadata of a concrete class without a base: writes, deletes and builds its objects, and releases handles
/// on them.
template <class T>
class cls_RootAdapter : public cls_ClassMetadata
{
public:
    cls_RootAdapter(const cow_String& name, int version)
        : cls_ClassMetadata(name, T::TypeId(), version, nullptr, cls_RootId)
    {
        AddDtor(cow_DeleteHolder<T>);
    }

    void DBWrite(const void* object, const cls_WriteVisitor& visitor) const override
    {
        static_cast<const T*>(object)->DBWrite(visitor);
    }

    void Delete(void* object) const override { delete static_cast<T*>(object); }

    void* Ctor(const cls_ReadVisitor& visitor) const override { return new T(visitor); }

    bool IsConcrete() const override { return true; }

    bool DBWriteDefault(const cls_WriteVisitor& visitor) const override
    {
        T().DBWrite(visitor);
        return true;
    }
};
