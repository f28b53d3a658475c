#include "kamC_EquallySpaced.h"

#include "kamC_assert.h"
#include "kamC_rules.h"

CLS_IMPLEMENT(kamC_EquallySpaced)

void kamC_EquallySpaced::AssertValid() const
{
    kamC_AssertSmooth(smooth);
    kamC_Assert(fixedInterval > 0.0, 9);
    kamC_Assert(data.Count() >= 2, 12);
    kamC_AssertBaselineCorrection(baselineCorrection);
}
