#pragma once

#include "cow_2DArray.h"
#include "kamC_BaselineCorrection.h"

// Rules that several amplitudes share. Each throws through kamC_Assert.

/// `smooth` must be not set, or lie between 0 and 0.5.
void kamC_AssertSmooth(double smooth);
/// At most two columns, at least two rows, and times in the first column that do not decrease.
void kamC_AssertTimeTable(const cow_2DArray<double>& data);
/// The rules of the baseline correction, if there is one.
void kamC_AssertBaselineCorrection(const kamC_BaselineCorrectionHandle& baselineCorrection);
