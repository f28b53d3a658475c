#include "kbpC_ArbitraryProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_ArbitraryProfile)

namespace
{

constexpr int thicknessColumn = 2;

} // namespace

void kbpC_ArbitraryProfile::AssertValid() const
{
    if (table.Columns() <= thicknessColumn)
        return;
    const auto thickness = [this](int row) { return table.ConstGet(row, thicknessColumn); };
    // A single segment may have no thickness, whatever the message says.
    for (int row = 1; row < table.Rows(); ++row)
        kbpC_Assert(thickness(row) >= 0.0, kbpC_BadThicknesses);
    for (int row = 1; row + 1 < table.Rows(); ++row)
        kbpC_Assert(thickness(row) != 0.0 || thickness(row + 1) != 0.0, kbpC_ConnectedZeroThicknesses);
}
