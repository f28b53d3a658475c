#pragma once

#include "cls_LabelMap.h"

/// What the shapes are called in descriptions, by class id.
class OVR_EXPORT kbpC_BeamProfileDescriptionMap : public cls_LabelMap<kbpC_BeamProfileDescriptionMap>
{
public:
    kbpC_BeamProfileDescriptionMap();

    /// All texts by class id, not translated.
    static std::vector<cls_Label> Rows();
};
