#include "kbpC_TbeamProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_TbeamProfile)

void kbpC_TbeamProfile::AssertValid() const
{
    kbpC_Assert(b > 0.0, kbpC_BadB);
    kbpC_Assert(h > 0.0, kbpC_BadH);
    kbpC_Assert(tw > 0.0, kbpC_BadTw);
    kbpC_Assert(tf > 0.0, kbpC_BadTf);
    kbpC_Assert(h > tf, kbpC_TfFillsH);
    kbpC_Assert(b > tw, kbpC_TwFillsB);
}
