#pragma once

#include "app_Chart.h"
#include "cls_Value.h"

#include <optional>

/// The curve that an amplitude stands for, over time or frequency; none for any other object, for an
/// amplitude without one, and where the numbers make none.
std::optional<app_Chart> app_ChartOfAmplitude(const cls_Value& object);
