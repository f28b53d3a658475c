#include "atr_NaturalOrder.h"

bool atr_detail::naturalOrder = false;
