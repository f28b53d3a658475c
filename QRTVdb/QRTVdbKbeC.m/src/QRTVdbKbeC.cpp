#include "QRTVdbKbeC.h"

#include "kbeC_AssertContent.h"
#include "kbeC_assert.h"

namespace
{

constexpr unsigned short moduleNumber = 680;

int moduleCount = 0;

} // namespace

void QRTVdbKbeC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kbeC_ArchEntry());
    cls_Catalogue& catalogue = *omi_Singleton<cls_Catalogue>::Instance();
    catalogue.AddMessages(moduleNumber, kbeC_Messages);
    catalogue.AddMessages(moduleNumber, kbeC_ContentMessages);
}

void QRTVdbKbeC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void kbeC_formalize() {}
