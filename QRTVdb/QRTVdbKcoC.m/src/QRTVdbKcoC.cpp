#include "QRTVdbKcoC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 720;

int moduleCount = 0;

} // namespace

void QRTVdbKcoC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kcoC_ArchEntry());
}

void QRTVdbKcoC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
