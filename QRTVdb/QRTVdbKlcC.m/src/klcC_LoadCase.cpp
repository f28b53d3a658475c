#include "klcC_LoadCase.h"

#include "klcC_assert.h"

CLS_IMPLEMENT(klcC_LoadCase)

namespace
{

void AssertFactors(const cow_Map<cow_String, float>& factors)
{
    cow_ConstMapIterator<cow_String, float> entry(factors);
    // A factor that is not a number differs from zero, and passes.
    for (bool there = entry.First(); there; there = entry.Next())
        klcC_Assert(entry.Value() != 0.0F, klcC_ZeroScaleFactor);
}

} // namespace

void klcC_LoadCase::AssertValid() const
{
    AssertFactors(boundaryConditions);
    AssertFactors(loads);
    AssertFactors(fields);
}
