#pragma once

#include "kamC_Amplitude.h"
#include "mdl_ExtensionWrapper.h"

MDL_CONTAINER(kamC_Amplitude, "kamC_AmplitudeContainer", 0x244000C, "kamC_ACWrapper", 0x2440017, "amplitudes")

/// The model's amplitudes by name.
using kamC_AmplitudeContainer = mdl_MapString2ObjCow<kamC_Amplitude>;
/// What plugs the amplitudes into the model.
using kamC_ACWrapper = mdl_ExtensionWrapper<kamC_AmplitudeContainer>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<kamC_Amplitude>;
extern template class OVR_EXPORT mdl_ExtensionWrapper<mdl_MapString2ObjCow<kamC_Amplitude>>;
