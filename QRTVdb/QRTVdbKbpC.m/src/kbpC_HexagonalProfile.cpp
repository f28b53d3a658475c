#include "kbpC_HexagonalProfile.h"

#include "kbpC_assert.h"

CLS_IMPLEMENT(kbpC_HexagonalProfile)

namespace
{

// These digits and not the sqrt(3)/2 of the message: at radius 1, a wall of 0.86601 is refused.
constexpr double distanceOfSides = 0.866;

} // namespace

void kbpC_HexagonalProfile::AssertValid() const
{
    kbpC_Assert(r > 0.0, kbpC_BadRadius);
    kbpC_Assert(t > 0.0, kbpC_BadT);
    kbpC_Assert(distanceOfSides * r > t, kbpC_WallFillsHexagon);
}
