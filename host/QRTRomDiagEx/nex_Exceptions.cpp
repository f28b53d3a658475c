#include "nex_Exceptions.h"

template class nex_PrimException<atr_String, 1>;
template class nex_CmdException<atr_String, 2>;
template class nex_CmdException<cow_String, 9>;
