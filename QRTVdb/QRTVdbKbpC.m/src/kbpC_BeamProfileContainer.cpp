#include "kbpC_BeamProfileContainer.h"

template class mdl_MapString2ObjCow<kbpC_BeamProfile>;
template class mdl_ExtensionWrapper<mdl_MapString2ObjCow<kbpC_BeamProfile>>;
