#pragma once

#include "klcC_LoadCase.h"
#include "mdl_MapString2ObjCow.h"

MDL_CONTAINER(klcC_LoadCase, "klcC_LoadCaseCont", 0x2DC0002, nullptr, 0, "loadCases")

/// Load cases by name. The model itself takes none; who owns them lies outside the library.
using klcC_LoadCaseCont = mdl_MapString2ObjCow<klcC_LoadCase>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<klcC_LoadCase>;
