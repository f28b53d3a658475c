#pragma once

#include "gsl_Point.h"
#include "ovr_Export.h"

/// The features from which a model's geometry is made, as far as stored geometry has to ask them.
class OVR_EXPORT ftr_FeatureList
{
public:
    virtual ~ftr_FeatureList();

    /// Where a point picked at `stored` stands now that the features have been regenerated; `stored` itself
    /// if no feature moves it.
    virtual gsl_Point Regenerated(const gsl_Point& stored) const = 0;
};
