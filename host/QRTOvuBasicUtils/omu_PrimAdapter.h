#pragma once

#include "cls_ClassMetadata.h"
#include "omu_Primitive.h"

/// Metadata of a primitive that can be built from a record. Objects are passed as pointers to omu_Primitive.
template <class T>
class omu_PrimAdapter final : public cls_ClassMetadata
{
public:
    omu_PrimAdapter(const cow_String& name, int version, unsigned baseId)
        : cls_ClassMetadata(name, T::TypeId(), version, nullptr, baseId)
    {}

    void DBWrite(const void* object, const cls_WriteVisitor& visitor) const override
    {
        static_cast<const omu_Primitive*>(object)->DBWrite(visitor);
    }

    void Delete(void* object) const override { delete static_cast<omu_Primitive*>(object); }

    void* Ctor(const cls_ReadVisitor& visitor) const override
    {
        return static_cast<omu_Primitive*>(new T(visitor));
    }

    bool IsConcrete() const override { return true; }
};
