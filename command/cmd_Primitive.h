#pragma once

#include "cmd_Value.h"

class omu_Arguments;
class omu_Primitive;

// What a front end that works with primitives hands over. A text of an enumeration becomes a symbol.

OVR_EXPORT cmd_Value cmd_ValueOfPrimitive(const omu_Primitive& primitive);

/// The arguments of a call by keyword. Throws `cmd_Error` if there are others.
OVR_EXPORT cmd_Arguments cmd_ArgumentsOfPrimitives(const omu_Arguments& arguments);
