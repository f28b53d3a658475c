#include "kamC_UserAmplitude.h"

CLS_IMPLEMENT(kamC_UserAmplitude)

void kamC_UserAmplitude::AssertValid() const {}
