#include "QRTVdbKadC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 616;

int moduleCount = 0;

} // namespace

void QRTVdbKadC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kadC_ArchEntry());
}

void QRTVdbKadC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void kadC_formalize() {}
