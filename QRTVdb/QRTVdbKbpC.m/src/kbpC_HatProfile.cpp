#include "kbpC_HatProfile.h"

#include "kbpC_rules.h"

CLS_IMPLEMENT(kbpC_HatProfile)

void kbpC_HatProfile::AssertValid() const
{
    if (!kbpC_AssertFlanges(*this))
        return;
    kbpC_AssertFlangesFit(*this);
    kbpC_Assert(b1 > 2.0 * t3, kbpC_T3FillsHalfB1);
}
