#pragma once

#include "cls_Value.h"

#include <string>

/// Draws an object as a document of SVG: the curve of an amplitude, the section of a beam profile with its
/// dimensions, the hardening curves or test data of a material. `object` is its plain value with "class"
/// first, `path` its place in the model. Throws `app_Error` if it has no picture.
std::string app_PictureOf(const std::string& path, const cls_Value& object);
