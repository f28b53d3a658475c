#include "kamC_ActuatorAmplitude.h"

CLS_IMPLEMENT(kamC_ActuatorAmplitude)

void kamC_ActuatorAmplitude::AssertValid() const {}
