#include "kbpC_GeneralizedProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_GeneralizedProfile)

void kbpC_GeneralizedProfile::AssertValid() const
{
    kbpC_Assert(area > 0.0, kbpC_BadArea);
    kbpC_Assert(i11 > 0.0, kbpC_BadI11);
    if (i22 > 0.0)
    {
        const double half = (i22 + i11) * 0.5;
        kbpC_Assert(-half < i12 && i12 <= half, kbpC_BadI12);
    }
    else if (i22 == 0.0)
        kbpC_Assert(i12 == 0.0, kbpC_I12WithoutI22);
    else
        // A negative moment passes on purpose, whatever its message says.
        kbpC_Assert(true, kbpC_NegativeI22);
    kbpC_Assert(j >= 0.0, kbpC_NegativeJ);
}
