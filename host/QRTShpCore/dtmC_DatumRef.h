#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;

/// Names a datum of the model, such as a coordinate system. An empty reference has no name and stands for
/// none.
class OVR_EXPORT dtmC_DatumRef : public mem_AllocationOperators
{
public:
    dtmC_DatumRef();
    explicit dtmC_DatumRef(const cow_String& name);
    explicit dtmC_DatumRef(const cls_ReadVisitor& visitor);

    const cow_String& Name() const { return name; }

    /// Equality of the names; identities don't count.
    friend bool operator==(const dtmC_DatumRef& left, const dtmC_DatumRef& right)
    {
        return left.name == right.name;
    }
    friend bool operator!=(const dtmC_DatumRef& left, const dtmC_DatumRef& right) { return !(left == right); }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    static unsigned TypeId() { return 0x290001; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cow_String name;
    cls_Uid uid;
};
