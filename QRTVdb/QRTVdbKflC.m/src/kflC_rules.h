#pragma once

#include "kflC_Filter.h"

// Rules that several kinds of filter share. Each throws through kflC_Assert.

/// The cutoff frequency must be positive.
void kflC_AssertCutoffFrequency(const kflC_Filter& filter);
/// The order must lie between 1 and 20.
void kflC_AssertOrder(const kflC_Filter& filter);
