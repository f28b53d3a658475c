#include "kmaC_RateOptions.h"

CLS_IMPLEMENT(kmaC_Regularization)
CLS_IMPLEMENT(kmaC_Shear)
