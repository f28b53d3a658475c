#include "kbpC_CbeamProfile.h"

#include "kbpC_rules.h"

#include <algorithm>

CLS_IMPLEMENT(kbpC_CbeamProfile)

void kbpC_CbeamProfile::AssertValid() const
{
    if (!kbpC_AssertFlanges(*this))
        return;
    kbpC_AssertFlangesFit(*this);
    kbpC_Assert(std::min(b1, b2) > t3, kbpC_T3FillsFlange);
}
