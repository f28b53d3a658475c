#pragma once

#include "cls_Description.h"

#include <string>
#include <vector>

/// What stands in the columns of a table attribute of `owner`, the plain value of an object with "class"
/// first: the constants of its law, then what they depend on. Empty where it is not known, or does not make
/// as many columns as the table has.
std::vector<std::string> app_HeadingsOf(const cls_Value& owner, const std::string& attribute,
                                        std::size_t columns);
