#include "karC_RemeshingRuleContainer.h"

template class mdl_MapString2ObjCow<karC_RemeshingRule>;
