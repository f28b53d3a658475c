#pragma once

#include "omu_PrimValue.h"

/// A whole number of 32 bits.
class OVR_EXPORT omu_PrimInt final : public omu_PrimValue<omu_PrimInt, int>
{
public:
    using omu_PrimValue<omu_PrimInt, int>::omu_PrimValue;
};
