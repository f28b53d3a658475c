#pragma once

#include "karC_RemeshingRule.h"
#include "mdl_MapString2ObjCow.h"

MDL_CONTAINER(karC_RemeshingRule, "karC_RemeshingRuleContainer", 0x3570001, nullptr, 0, "remeshingRules")

/// Remeshing rules by name. The model itself takes none; who owns them lies outside the library.
using karC_RemeshingRuleContainer = mdl_MapString2ObjCow<karC_RemeshingRule>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<karC_RemeshingRule>;
