#include "kbpC_LbeamProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_LbeamProfile)

void kbpC_LbeamProfile::AssertValid() const
{
    kbpC_Assert(a > 0.0, kbpC_BadA);
    kbpC_Assert(b > 0.0, kbpC_BadB);
    kbpC_Assert(t1 > 0.0, kbpC_BadT1);
    kbpC_Assert(t2 > 0.0, kbpC_BadT2);
    kbpC_Assert(b > t1, kbpC_T1FillsB);
    kbpC_Assert(a > t2, kbpC_T2FillsA);
}
