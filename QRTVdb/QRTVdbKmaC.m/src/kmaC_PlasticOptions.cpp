#include "kmaC_PlasticOptions.h"

CLS_IMPLEMENT(kmaC_RateDependent)
CLS_IMPLEMENT(kmaC_Potential)
CLS_IMPLEMENT(kmaC_CyclicHardening)
CLS_IMPLEMENT(kmaC_CycledPlastic)
CLS_IMPLEMENT(kmaC_AnnealTemperature)
CLS_IMPLEMENT(kmaC_Ornl)
CLS_IMPLEMENT(kmaC_TensileFailure)
