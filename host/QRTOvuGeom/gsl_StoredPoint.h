#pragma once

#include "cls_ReadVisitor.h"
#include "cls_WriteVisitor.h"
#include "gsl_Point.h"

class cls_ClassMetadata;

/// A point as three attributes of its owner's row, with indices from `firstIndex` on.
struct gsl_StoredPoint
{
    int firstIndex;
    const char* xName;
    const char* yName;
    const char* zName;

    void Write(const cls_WriteVisitor& visitor, const gsl_Point& point) const;
    gsl_Point Read(const cls_ReadVisitor& visitor) const;
    void Describe(cls_ClassMetadata& metadata) const;
};
