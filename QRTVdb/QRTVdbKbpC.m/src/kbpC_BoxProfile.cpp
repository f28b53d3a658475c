#include "kbpC_BoxProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_BoxProfile)

void kbpC_BoxProfile::AssertValid() const
{
    kbpC_Assert(b > 0.0, kbpC_BadHeight);
    kbpC_Assert(a > 0.0, kbpC_BadWidth);
    if (uniformThickness)
    {
        kbpC_Assert(t1 > 0.0, kbpC_BadThickness);
        kbpC_Assert(a > 2.0 * t1, kbpC_WallFillsHalfWidth);
        kbpC_Assert(b > 2.0 * t1, kbpC_WallFillsHalfHeight);
        return;
    }
    kbpC_Assert(t1 > 0.0 && t2 > 0.0 && t3 > 0.0 && t4 > 0.0, kbpC_BadThicknesses);
    kbpC_Assert(a > t1 + t3, kbpC_WallsFillWidth);
    kbpC_Assert(b > t2 + t4, kbpC_WallsFillHeight);
}
