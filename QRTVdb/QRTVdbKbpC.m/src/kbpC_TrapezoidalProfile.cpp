#include "kbpC_TrapezoidalProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_TrapezoidalProfile)

void kbpC_TrapezoidalProfile::AssertValid() const
{
    kbpC_Assert(a > 0.0, kbpC_BadA);
    kbpC_Assert(b > 0.0, kbpC_BadB);
    kbpC_Assert(c > 0.0, kbpC_BadC);
}
