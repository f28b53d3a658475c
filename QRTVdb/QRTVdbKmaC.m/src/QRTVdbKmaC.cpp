#include "QRTVdbKmaC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 568;

int moduleCount = 0;

} // namespace

void QRTVdbKmaC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kmaC_ArchEntry());
}

void QRTVdbKmaC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
