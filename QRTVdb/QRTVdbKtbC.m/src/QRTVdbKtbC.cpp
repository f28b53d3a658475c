#include "QRTVdbKtbC.h"

#include "ktbC_assert.h"

namespace
{

constexpr unsigned short moduleNumber = 772;

int moduleCount = 0;

} // namespace

void QRTVdbKtbC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, ktbC_ArchEntry());
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, ktbC_Messages);
}

void QRTVdbKtbC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}
