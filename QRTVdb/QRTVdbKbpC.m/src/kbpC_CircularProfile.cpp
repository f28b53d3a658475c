#include "kbpC_CircularProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_CircularProfile)

void kbpC_CircularProfile::AssertValid() const
{
    kbpC_Assert(r > 0.0, kbpC_BadRadius);
}
