#include "kamC_Decay.h"

CLS_IMPLEMENT(kamC_Decay)

void kamC_Decay::AssertValid() const {}
