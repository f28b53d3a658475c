#include "kmaC_Creep.h"

CLS_IMPLEMENT(kmaC_Creep)
CLS_IMPLEMENT(kmaC_Viscous)

void kmaC_Creep::AssertValid() const
{
    kmaC_AssertDependencies(dependencies);
    kmaC_AssertOptions(ornl, potential);
    table.AssertValid();
}

void kmaC_Viscous::AssertValid() const
{
    kmaC_AssertDependentTable(*this);
    kmaC_AssertOptions(potential);
}
