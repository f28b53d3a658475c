#include "QRTVdbKbpC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 612;

int moduleCount = 0;

} // namespace

void QRTVdbKbpC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kbpC_ArchEntry());
}

void QRTVdbKbpC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
