#pragma once

#include "rgnC_Region.h"

/// Two regions that belong together as the ends of something, such as a spring. Each end has a flag of its
/// own, beside that of its region; an end whose flag is set isn't reported among the regions of its owner.
class OVR_EXPORT rgnC_RegionPair : public mem_AllocationOperators
{
public:
    rgnC_RegionPair();
    rgnC_RegionPair(const rgnC_Region& first, const rgnC_Region& second, bool firstFlag = false,
                    bool secondFlag = false);
    explicit rgnC_RegionPair(const cls_ReadVisitor& visitor);

    const rgnC_Region& First() const { return first; }
    const rgnC_Region& Second() const { return second; }
    bool FirstFlag() const { return firstFlag; }
    bool SecondFlag() const { return secondFlag; }

    /// Equality of both ends, their flags included; identities don't count.
    friend bool operator==(const rgnC_RegionPair& left, const rgnC_RegionPair& right)
    {
        return left.first == right.first && left.second == right.second &&
               left.firstFlag == right.firstFlag && left.secondFlag == right.secondFlag;
    }
    friend bool operator!=(const rgnC_RegionPair& left, const rgnC_RegionPair& right)
    {
        return !(left == right);
    }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    static unsigned TypeId() { return 0x2A0002; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    rgnC_Region first;
    rgnC_Region second;
    bool firstFlag = false;
    bool secondFlag = false;
    cls_Uid uid;
};
