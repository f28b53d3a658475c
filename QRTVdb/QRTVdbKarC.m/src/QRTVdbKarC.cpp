#include "QRTVdbKarC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 855;

int moduleCount = 0;

} // namespace

void QRTVdbKarC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, karC_ArchEntry());
}

void QRTVdbKarC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void karC_formalize() {}
