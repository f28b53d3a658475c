#include "QRTVdbKtbC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 772;

int moduleCount = 0;

} // namespace

void QRTVdbKtbC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, ktbC_ArchEntry());
}

void QRTVdbKtbC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
