#include "kmaC_MaterialContainer.h"

template class mdl_MapString2ObjCow<kmaC_Material>;
template class mdl_ExtensionWrapper<mdl_MapString2ObjCow<kmaC_Material>>;
template class mdl_1DArrayList<cls_ElementHandle<kmaC_MaterialOption>, kmaC_MaterialOption>;
