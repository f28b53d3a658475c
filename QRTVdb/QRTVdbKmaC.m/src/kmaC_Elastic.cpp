#include "kmaC_Elastic.h"

CLS_IMPLEMENT(kmaC_FailStress)
CLS_IMPLEMENT(kmaC_FailStrain)
CLS_IMPLEMENT(kmaC_Elastic)
CLS_IMPLEMENT(kmaC_Hypoelastic)

void kmaC_Elastic::AssertValid() const
{
    kmaC_Assert(!(noCompression && noTension), 36);
    kmaC_AssertDependencies(dependencies);
    kmaC_AssertOptions(failStrain, failStress);
    table.AssertValid();
}
