#include "QRTVdbKopC.h"

#include "kopC_assert.h"

namespace
{

constexpr unsigned short moduleNumber = 932;

int moduleCount = 0;

} // namespace

void QRTVdbKopC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kopC_ArchEntry());
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, kopC_Messages);
}

void QRTVdbKopC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
