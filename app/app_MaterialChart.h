#pragma once

#include "app_Chart.h"
#include "cls_Value.h"

#include <optional>

/// What can be drawn of a material: its hardening curves, stress over plastic strain, one for each rate,
/// temperature and field value; without a table of these, the stress over strain of its test data. The same
/// for plasticity and for test data alone. None for any other object, and where there is no such table.
/// Throws `app_Error` for a table whose columns do not fit the object's attributes.
std::optional<app_Chart> app_ChartOfMaterial(const cls_Value& object);
