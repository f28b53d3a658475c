#include "kamC_rules.h"

#include "kamC_assert.h"

void kamC_AssertSmooth(double smooth)
{
    kamC_Assert(smooth == cls_UnsetDouble || (0.0 <= smooth && smooth <= 0.5), 2);
}

void kamC_AssertTimeTable(const cow_2DArray<double>& data)
{
    kamC_Assert(data.Columns() <= 2, 11);
    kamC_Assert(data.Rows() >= 2, 12);
    if (data.Columns() == 0)
        return;
    // Equal times pass, though the message speaks of increasing numbers.
    for (int row = 1; row < data.Rows(); ++row)
        kamC_Assert(data.ConstGet(row - 1, 0) <= data.ConstGet(row, 0), 0);
}

void kamC_AssertBaselineCorrection(const kamC_BaselineCorrectionHandle& baselineCorrection)
{
    if (!baselineCorrection.IsNull())
        baselineCorrection->AssertValid();
}
