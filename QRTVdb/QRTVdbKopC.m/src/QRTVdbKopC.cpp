#include "QRTVdbKopC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 932;

int moduleCount = 0;

} // namespace

void QRTVdbKopC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kopC_ArchEntry());
}

void QRTVdbKopC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
