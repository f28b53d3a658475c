#pragma once

#include "cow_COW.h"
#include "mem_AllocationOperators.h"
#include "ovr_Export.h"

class cls_ClassRegistrar;
class dbc_DatabaseConverter;

/// One old stored form of a class: describes it, and says by which step it becomes the next form.
class OVR_EXPORT dbc_OldClassVersion : public mem_AllocationOperators
{
public:
    dbc_OldClassVersion() = default;
    dbc_OldClassVersion(const dbc_OldClassVersion&) = default;
    dbc_OldClassVersion& operator=(const dbc_OldClassVersion&) = default;
    virtual ~dbc_OldClassVersion();

    /// Describes the class as the old release stored it: the current id, the old version, attributes and
    /// indices.
    virtual void InitializeMetadata(cls_ClassRegistrar& registrar) = 0;
    /// Declares the step to the next form.
    virtual void SchemaChanges(dbc_DatabaseConverter& converter) = 0;
    /// Names classes that no longer stand by themselves; none by default.
    virtual void ClassesToDelete(dbc_DatabaseConverter& converter);
    /// Names classes that have another name now; none by default.
    virtual void ClassesToRename(dbc_DatabaseConverter& converter);
    /// Moves tables that have another class now; none by default.
    virtual void TablesToRename(dbc_DatabaseConverter& converter);
};
