#pragma once

#include "omu_PrimValue.h"

/// A truth value: True or False.
class OVR_EXPORT omu_PrimBool final : public omu_PrimValue<omu_PrimBool, bool>
{
public:
    using omu_PrimValue<omu_PrimBool, bool>::omu_PrimValue;
};
