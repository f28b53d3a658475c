#pragma once

#include "omu_PrimValue.h"

/// A number with a fraction; a script sees it with its point, 1.0 and not 1.
class OVR_EXPORT omu_PrimDouble final : public omu_PrimValue<omu_PrimDouble, double>
{
public:
    using omu_PrimValue<omu_PrimDouble, double>::omu_PrimValue;
};
