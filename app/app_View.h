#pragma once

#include "app_Plot.h"
#include "cls_Description.h"

#include <optional>
#include <string>

/// The kind of an object, as a user reads it: the label of its class, or its constructor word, or its name.
std::string app_LabelOf(const cls_Description& description);

/// The curve that an object stands for, if it stands for one; the first of several.
std::optional<app_Curve> app_CurveOf(const cls_Value& object);
