#include "kamC_Spectrum.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_Spectrum)

void kamC_Spectrum::AssertValid() const
{
    kamC_Assert(g >= 0.0, 13);
    kamC_Assert(table.Columns() == 3, 15);
}
