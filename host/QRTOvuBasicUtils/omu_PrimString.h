#pragma once

#include "omu_PrimValue.h"

/// A text.
class OVR_EXPORT omu_PrimString final : public omu_PrimValue<omu_PrimString, cow_String>
{
public:
    using omu_PrimValue<omu_PrimString, cow_String>::omu_PrimValue;
};
