#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;

/// Which regions of an object are asked for; any other value asks for none.
enum rgnC_RegionType : int
{
    rgnC_FlaggedRegions = 0,   ///< Regions whose flag is not zero.
    rgnC_UnflaggedRegions = 1, ///< Regions whose flag is zero.
    rgnC_AllRegions = 2
};

/// Names a set or surface of the model. An empty region has no name, no flag and no kinds.
class OVR_EXPORT rgnC_Region : public mem_AllocationOperators
{
public:
    rgnC_Region();
    explicit rgnC_Region(const cow_String& name, int flag = 0, int kinds = 0);
    explicit rgnC_Region(const cls_ReadVisitor& visitor);

    const cow_String& Name() const { return name; }
    /// Flag word of the region.
    int Flag() const { return flag; }
    /// Bit mask of the kinds of thing that the region holds.
    int Kinds() const { return kinds; }

    /// Whether a request for regions of this type wants this one.
    bool IsOfType(rgnC_RegionType type) const;

    /// Equality of name, flag and kinds; identities don't count.
    friend bool operator==(const rgnC_Region& left, const rgnC_Region& right)
    {
        return left.name == right.name && left.flag == right.flag && left.kinds == right.kinds;
    }
    friend bool operator!=(const rgnC_Region& left, const rgnC_Region& right) { return !(left == right); }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    static unsigned TypeId() { return 0x2A0001; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    cow_String name;
    int flag = 0;
    int kinds = 0;
    cls_Uid uid;
};
