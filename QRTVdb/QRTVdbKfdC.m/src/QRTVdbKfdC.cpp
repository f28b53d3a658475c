#include "QRTVdbKfdC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 858;

int moduleCount = 0;

} // namespace

void QRTVdbKfdC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kfdC_ArchEntry());
}

void QRTVdbKfdC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
