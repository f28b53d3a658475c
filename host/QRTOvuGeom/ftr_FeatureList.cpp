#include "ftr_FeatureList.h"

ftr_FeatureList::~ftr_FeatureList() = default;
