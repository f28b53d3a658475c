#include "kamC_BaselineCorrection.h"

#include "kamC_assert.h"

CLS_IMPLEMENT(kamC_BaselineCorrection)

void kamC_BaselineCorrection::AssertValid() const
{
    if (intervals.Count() == 0)
        return;
    kamC_Assert(intervals[0] >= 0.0, 19);
    for (int i = 1; i < intervals.Count(); ++i)
        kamC_Assert(intervals[i] > intervals[i - 1], 19);
}
