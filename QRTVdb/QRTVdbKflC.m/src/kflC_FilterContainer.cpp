#include "kflC_FilterContainer.h"

template class mdl_MapString2ObjCow<kflC_Filter>;
template class mdl_ExtensionWrapper<mdl_MapString2ObjCow<kflC_Filter>>;
