#include "QRTVdbKlcC.h"

#include "klcC_AssertLoadCaseContent.h"
#include "klcC_LoadCaseCont.h"
#include "klcC_assert.h"
#include "klcC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 732;
constexpr unsigned containerMask = 3;

int moduleCount = 0;

void FillCatalogue()
{
    cls_Catalogue& catalogue = *omi_Singleton<cls_Catalogue>::Instance();
    catalogue.AddMessages(moduleNumber, klcC_Messages);
    catalogue.AddMessages(moduleNumber, klcC_CompoundMessages);
}

} // namespace

void QRTVdbKlcC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, klcC_ArchEntry());
    cls_RegisterClasses<klcC_LoadCase>();
    cls_RegisterClasses<klcC_LoadCaseCont>(containerMask);
    klcC_RegisterOldClasses();
    FillCatalogue();
}

void QRTVdbKlcC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void klcC_formalize() {}
