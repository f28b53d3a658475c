#include "kamC_Periodic.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_Periodic)

void kamC_Periodic::AssertValid() const
{
    kamC_Assert(data.Rows() >= 1, 22);
    kamC_Assert(data.Columns() < 3, 11);
}
