#include "QRTVdbKcoC.h"

#include "kcoC_assert.h"

namespace
{

constexpr unsigned short moduleNumber = 720;

int moduleCount = 0;

} // namespace

void QRTVdbKcoC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kcoC_ArchEntry());
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, kcoC_Messages);
}

void QRTVdbKcoC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
