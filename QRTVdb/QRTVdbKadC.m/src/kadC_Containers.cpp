#include "kadC_Containers.h"

template class mdl_MapString2ObjCow<kadC_AdptMeshCtrl>;
template class mdl_ExtensionWrapper<mdl_MapString2ObjCow<kadC_AdptMeshCtrl>>;
template class mdl_MapString2ObjCow<kadC_AdptMeshDomain>;
