#pragma once

#include "kadC_AdptMeshCtrl.h"
#include "kadC_AdptMeshDomain.h"
#include "mdl_ExtensionWrapper.h"

MDL_CONTAINER(kadC_AdptMeshCtrl, "kadC_AdptMeshCtrlContainer", 0x2680003, "kadC_AMCCWrapper", 0x268000A,
              "adaptiveMeshControls")
MDL_CONTAINER(kadC_AdptMeshDomain, "kadC_AdptMeshDomainContainer", 0x268000B, nullptr, 0,
              "adaptiveMeshDomains")

/// The model's adaptive mesh controls by name.
using kadC_AdptMeshCtrlContainer = mdl_MapString2ObjCow<kadC_AdptMeshCtrl>;
/// What plugs the adaptive mesh controls into the model.
using kadC_AMCCWrapper = mdl_ExtensionWrapper<kadC_AdptMeshCtrlContainer>;
/// Adaptive mesh domains by name. The model itself takes none; who owns them lies outside the library.
using kadC_AdptMeshDomainContainer = mdl_MapString2ObjCow<kadC_AdptMeshDomain>;

extern template class OVR_EXPORT mdl_MapString2ObjCow<kadC_AdptMeshCtrl>;
extern template class OVR_EXPORT mdl_ExtensionWrapper<mdl_MapString2ObjCow<kadC_AdptMeshCtrl>>;
extern template class OVR_EXPORT mdl_MapString2ObjCow<kadC_AdptMeshDomain>;
