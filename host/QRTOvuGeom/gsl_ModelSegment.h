#pragma once

#include "gsl_Dot.h"
#include "gsl_Vector.h"

class ftr_FeatureList;

/// A straight piece between two points of the model, which gives a direction. An empty segment begins and
/// ends at the origin.
class OVR_EXPORT gsl_ModelSegment : public mem_AllocationOperators
{
public:
    gsl_ModelSegment();
    gsl_ModelSegment(const gsl_Dot& from, const gsl_Dot& to);
    explicit gsl_ModelSegment(const cls_ReadVisitor& visitor);

    const gsl_Point& From() const { return from; }
    const gsl_Point& To() const { return to; }
    /// The way from the first point to the second, in full length.
    gsl_Vector Direction() const { return to - from; }
    /// Magnitude of the direction.
    double Length() const { return Direction().ComputeMagnitude(); }

    /// Moves both points to where the features have them now. Null leaves the segment as it is.
    void Regenerate(const ftr_FeatureList* features);

    /// Equality of the points; identities don't count.
    friend bool operator==(const gsl_ModelSegment& left, const gsl_ModelSegment& right)
    {
        return left.from == right.from && left.to == right.to;
    }

    void DBWrite(const cls_WriteVisitor& visitor) const;
    static unsigned TypeId() { return 0x280002; }
    static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
    gsl_Point from;
    gsl_Point to;
    cls_Uid uid;
};
