#include "QRTVdbKlcC.h"

#include "klcC_AssertLoadCaseContent.h"

namespace
{

constexpr unsigned short moduleNumber = 732;

int moduleCount = 0;

} // namespace

void QRTVdbKlcC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, klcC_ArchEntry());
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, klcC_CompoundMessages);
}

void QRTVdbKlcC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void klcC_formalize() {}
