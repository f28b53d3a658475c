#include "QRTVdbKflC.h"

#include "cls_Module.h"

namespace
{

constexpr unsigned short moduleNumber = 849;

int moduleCount = 0;

} // namespace

void QRTVdbKflC_initialize(int& tally)
{
    if (cls_StepUp(moduleCount, tally))
        typ_ArchCompTable::InsertEntry(moduleNumber, kflC_ArchEntry());
}

void QRTVdbKflC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void kflC_formalize() {}
