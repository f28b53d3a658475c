#pragma once

#include "cls_LabelMap.h"

/// Labels of the shapes, as a user reads them, by class id; the box is called PROFILE_BOX by programs.
class OVR_EXPORT kbpC_BeamProfileLabelMap : public cls_LabelMap<kbpC_BeamProfileLabelMap>
{
public:
    kbpC_BeamProfileLabelMap();

    /// All texts by class id, not translated.
    static std::vector<cls_Label> Rows();
};
