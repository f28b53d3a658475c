#pragma once

#include "kflC_Filter.h"
#include "mdl_ExtensionWrapper.h"

MDL_CONTAINER(kflC_Filter, "kflC_FilterContainer", 0x3510001, "kflC_FCWrapper", 0x351000C, "filters")

/// The model's filters by name.
using kflC_FilterContainer = mdl_MapString2ObjCow<kflC_Filter>;
/// What plugs the filters into the model.
using kflC_FCWrapper = mdl_ExtensionWrapper<kflC_FilterContainer>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<kflC_Filter>;
extern template class OVR_EXPORT mdl_ExtensionWrapper<mdl_MapString2ObjCow<kflC_Filter>>;
