#include "kbpC_RectangularProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_RectangularProfile)

void kbpC_RectangularProfile::AssertValid() const
{
    kbpC_Assert(a > 0.0, kbpC_BadA);
    kbpC_Assert(b > 0.0, kbpC_BadB);
}
