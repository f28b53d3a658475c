#pragma once

#include "cls_Value.h"

#include <string>

/// All old stored forms of classes in order of registration: name, class, id, version, mask, the next version
/// and what leads to it, attributes with their old indices.
cls_Value app_OldVersions();

/// Versions of which older stores of a class can be, ascending, with blanks between them; empty if there are
/// none.
std::string app_OldVersionsOf(unsigned classId);
