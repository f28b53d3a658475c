#pragma once

#include "kmaC_Material.h"
#include "mdl_1DArrayList.h"
#include "mdl_ExtensionWrapper.h"
#include "mdl_MapString2ObjCow.h"

MDL_CONTAINER(kmaC_Material, "kmaC_MaterialContainer", 0x238005A, "kmaC_MCWrapper", 0x238007D, "materials")
MDL_ORDERED_CONTAINER(kmaC_MaterialOption, "kmaC_MatOptionList", 0x23800A8, nullptr, 0, "options")

/// The model's materials by name.
using kmaC_MaterialContainer = mdl_MapString2ObjCow<kmaC_Material>;
/// What plugs the materials into the model.
using kmaC_MCWrapper = mdl_ExtensionWrapper<kmaC_MaterialContainer>;
/// Options in order, as a member of an option.
using kmaC_MatOptionList = mdl_1DArrayList<cls_ElementHandle<kmaC_MaterialOption>, kmaC_MaterialOption>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<kmaC_Material>;
extern template class OVR_EXPORT mdl_ExtensionWrapper<mdl_MapString2ObjCow<kmaC_Material>>;
extern template class OVR_EXPORT mdl_1DArrayList<cls_ElementHandle<kmaC_MaterialOption>, kmaC_MaterialOption>;
