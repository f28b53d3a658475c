#include "kamC_SpectrumAmplitude.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_SpectrumAmplitude)

void kamC_SpectrumAmplitude::AssertValid() const
{
    if (specificationUnits == SpecificationUnitsEnm::GRAVITY)
        kamC_Assert(gravity >= 0.0, 13);
}
