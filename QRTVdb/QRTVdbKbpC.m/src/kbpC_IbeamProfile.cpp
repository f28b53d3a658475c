#include "kbpC_IbeamProfile.h"

#include "kbpC_rules.h"

CLS_IMPLEMENT(kbpC_IbeamProfile)

void kbpC_IbeamProfile::AssertValid() const
{
    kbpC_AssertFlanges(*this);
}
