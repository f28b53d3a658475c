#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "gsl_Point.h"
#include "mem_AllocationOperators.h"

class cls_ClassRegistrar;

/// A point that was picked in the model. An empty dot stands at the origin.
class OVR_EXPORT gsl_Dot : public mem_AllocationOperators
{
public:
    gsl_Dot();
    explicit gsl_Dot(const gsl_Point& point);
    explicit gsl_Dot(const cls_ReadVisitor& visitor);

    const gsl_Point& GetPoint() const { return point; }

    /// Equality of the points; identities don't count.
    friend bool operator==(const gsl_Dot& left, const gsl_Dot& right) { return left.point == right.point; }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    static unsigned TypeId() { return 0x280001; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    gsl_Point point;
    cls_Uid uid;
};
