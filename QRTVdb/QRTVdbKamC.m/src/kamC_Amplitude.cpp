#include "kamC_Amplitude.h"

CLS_IMPLEMENT(kamC_Amplitude)
