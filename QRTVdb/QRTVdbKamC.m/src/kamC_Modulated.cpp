#include "kamC_Modulated.h"

CLS_IMPLEMENT(kamC_Modulated)

void kamC_Modulated::AssertValid() const {}
