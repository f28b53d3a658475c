#include "QRTVdbKarC.h"

#include "cls_Module.h"
#include "karC_RemeshingRuleContainer.h"
#include "karC_Shortcuts.h"
#include "karC_assert.h"
#include "karC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 855;

int moduleCount = 0;

} // namespace

void QRTVdbKarC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, karC_ArchEntry());
    cls_RegisterClasses<karC_RemeshingRule, karC_RemeshingRuleContainer, karC_RemeshingRuleShortcut,
                        karC_RemeshingRuleIMPLSC>();
    karC_RegisterOldClasses();
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, karC_Messages);
}

void QRTVdbKarC_finalize(int& tally)
{
    cls_StepDown(moduleCount, tally);
}

void karC_formalize() {}
