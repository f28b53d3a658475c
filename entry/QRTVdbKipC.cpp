#include "QRTVdbKipC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 863;

int moduleCount = 0;

} // namespace

void QRTVdbKipC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kipC_ArchEntry());
}

void QRTVdbKipC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void kipC_formalize() {}
