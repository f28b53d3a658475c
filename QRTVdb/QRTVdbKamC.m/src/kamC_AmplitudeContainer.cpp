#include "kamC_AmplitudeContainer.h"

template class mdl_MapString2ObjCow<kamC_Amplitude>;
template class mdl_ExtensionWrapper<mdl_MapString2ObjCow<kamC_Amplitude>>;
