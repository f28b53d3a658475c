#include "klcC_LoadCaseCont.h"

template class mdl_MapString2ObjCow<klcC_LoadCase>;
