#include "kbpC_BeamProfile.h"

CLS_IMPLEMENT(kbpC_BeamProfile)
