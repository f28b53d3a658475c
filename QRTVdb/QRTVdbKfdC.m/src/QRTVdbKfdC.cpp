#include "QRTVdbKfdC.h"

#include "kfdC_assert.h"

namespace
{

constexpr unsigned short moduleNumber = 858;

int moduleCount = 0;

} // namespace

void QRTVdbKfdC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kfdC_ArchEntry());
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, kfdC_Messages);
}

void QRTVdbKfdC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
