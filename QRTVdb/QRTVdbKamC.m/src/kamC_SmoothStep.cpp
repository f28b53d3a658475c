#include "kamC_SmoothStep.h"

#include "kamC_rules.h"

CLS_IMPLEMENT(kamC_SmoothStep)

void kamC_SmoothStep::AssertValid() const
{
    kamC_AssertTimeTable(data);
}
