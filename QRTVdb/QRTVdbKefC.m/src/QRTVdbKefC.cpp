#include "QRTVdbKefC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 844;

int moduleCount = 0;

} // namespace

void QRTVdbKefC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kefC_ArchEntry());
}

void QRTVdbKefC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
