#include "kamC_Tabular.h"

#include "kamC_rules.h"

CLS_IMPLEMENT(kamC_Tabular)

void kamC_Tabular::AssertValid() const
{
    kamC_AssertSmooth(smooth);
    kamC_AssertTimeTable(data);
    kamC_AssertBaselineCorrection(baselineCorrection);
}
