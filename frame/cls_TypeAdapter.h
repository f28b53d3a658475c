#pragma once

#include "cls_ClassMetadata.h"

/// Metadata of class `T` that can write and delete its objects but not build one: for abstract classes.
/// Objects are passed as pointers to the root class of `T`.
template <class T>
class cls_AbsTypeAdapter : public cls_ClassMetadata
{
public:
    cls_AbsTypeAdapter(const cow_String& name, int version, unsigned baseId)
        : cls_ClassMetadata(name, T::TypeId(), version, nullptr, baseId)
    {}

    void DBWrite(const void* object, const cls_WriteVisitor& visitor) const override
    {
        static_cast<const T*>(static_cast<const typename T::cls_RootClass*>(object))->DBWrite(visitor);
    }

    void Delete(void* object) const override
    {
        delete static_cast<T*>(static_cast<typename T::cls_RootClass*>(object));
    }
};

/// Metadata of a concrete class: can also build an object from a record.
template <class T>
class cls_TypeAdapter : public cls_AbsTypeAdapter<T>
{
public:
    using cls_AbsTypeAdapter<T>::cls_AbsTypeAdapter;

    void* Ctor(const cls_ReadVisitor& visitor) const override
    {
        return static_cast<typename T::cls_RootClass*>(new T(visitor));
    }

    bool IsConcrete() const override { return true; }

    bool DBWriteDefault(const cls_WriteVisitor& visitor) const override
    {
        T().DBWrite(visitor);
        return true;
    }
};
