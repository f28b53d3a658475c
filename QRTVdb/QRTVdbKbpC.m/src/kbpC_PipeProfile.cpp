#include "kbpC_PipeProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_PipeProfile)

void kbpC_PipeProfile::AssertValid() const
{
    kbpC_Assert(r > 0.0, kbpC_BadRadius);
    kbpC_Assert(t > 0.0, kbpC_BadThickness);
    kbpC_Assert(r > t, kbpC_WallFillsRadius);
}
