#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;
class mdl_Repository;

/// What can be plugged into the model: a repository, or a wrapper that holds one.
class OVR_EXPORT mdl_Extension : public mem_AllocationOperators
{
public:
    mdl_Extension();
    explicit mdl_Extension(const cls_ReadVisitor& visitor);
    mdl_Extension(const mdl_Extension&) = default;
    mdl_Extension& operator=(const mdl_Extension&) = default;
    virtual ~mdl_Extension();

    /// A copy under the same identity, owned by the caller.
    virtual mdl_Extension* Copy() const = 0;
    /// The repository, for changing; owned by the extension.
    virtual mdl_Repository* GetValue() = 0;
    /// The repository, for reading.
    virtual const mdl_Repository* ConstGetValue() const = 0;
    virtual unsigned DynTypeId() const = 0;
    virtual void DBWrite(const cls_WriteVisitor& visitor) const;
    virtual void NewUid();

    static constexpr unsigned TypeId() { return 0xA000D; }

    static void InitializeMetadata(cls_ClassRegistrar& registrar);
    /// Gives back one share of a counted holder of an extension.
    static void CowDtor(cls_ErasedHandle* holder);

private:
    cls_Uid uid;
};
