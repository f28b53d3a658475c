#include "kamC_SolutionDependent.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_SolutionDependent)

void kamC_SolutionDependent::AssertValid() const
{
    kamC_Assert(maximum >= initial && initial >= minimum, 20);
}
