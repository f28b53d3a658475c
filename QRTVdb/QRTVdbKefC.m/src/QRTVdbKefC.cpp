#include "QRTVdbKefC.h"

#include "kefC_assert.h"

namespace
{

constexpr unsigned short moduleNumber = 844;

int moduleCount = 0;

} // namespace

void QRTVdbKefC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kefC_ArchEntry());
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, kefC_Messages);
}

void QRTVdbKefC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
