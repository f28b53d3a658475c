#pragma once

#include "kbpC_BeamProfile.h"
#include "mdl_ExtensionWrapper.h"

MDL_CONTAINER(kbpC_BeamProfile, "kbpC_BeamProfileContainer", 0x2640008, "kbpC_BPCWrapper", 0x2640014,
              "profiles")

/// The model's beam profiles by name.
using kbpC_BeamProfileContainer = mdl_MapString2ObjCow<kbpC_BeamProfile>;
/// What plugs the beam profiles into the model.
using kbpC_BPCWrapper = mdl_ExtensionWrapper<kbpC_BeamProfileContainer>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<kbpC_BeamProfile>;
extern template class OVR_EXPORT mdl_ExtensionWrapper<mdl_MapString2ObjCow<kbpC_BeamProfile>>;
