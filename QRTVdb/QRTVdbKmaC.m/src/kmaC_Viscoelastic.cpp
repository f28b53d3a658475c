#include "kmaC_Viscoelastic.h"

CLS_IMPLEMENT(kmaC_CombinedTestData)
CLS_IMPLEMENT(kmaC_ShearTestData)
CLS_IMPLEMENT(kmaC_Trs)
CLS_IMPLEMENT(kmaC_Viscoelastic)

void kmaC_Viscoelastic::AssertValid() const
{
    kmaC_Assert(nmax >= 1, 6);
    kmaC_Assert(nmax <= 13, 7);
    kmaC_Assert(!(type == TypeEnm::TRACTION && preload == PreloadEnm::VOLUMETRIC), 37);
    kmaC_AssertOptions(combinedTestData, shearTestData, trs, volumetricTestData);
    table.AssertValid();
}
