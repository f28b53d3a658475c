#include "kmaC_TestData.h"

CLS_IMPLEMENT(kmaC_UniaxialTestData)
CLS_IMPLEMENT(kmaC_BiaxialTestData)
CLS_IMPLEMENT(kmaC_PlanarTestData)
CLS_IMPLEMENT(kmaC_VolumetricTestData)
CLS_IMPLEMENT(kmaC_SimpleShearTestData)
