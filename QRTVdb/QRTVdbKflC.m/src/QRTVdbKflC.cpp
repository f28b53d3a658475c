#include "QRTVdbKflC.h"

#include "cls_Module.h"
#include "ddr_Model.h"
#include "kflC_ButterworthFilter.h"
#include "kflC_Chebyshev1Filter.h"
#include "kflC_Chebyshev2Filter.h"
#include "kflC_FilterContainer.h"
#include "kflC_OperatorFilter.h"
#include "kflC_Shortcuts.h"
#include "kflC_TypeLabelMap.h"
#include "kflC_assert.h"
#include "kflC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 849;
constexpr unsigned containerMask = 3;
constexpr unsigned wrapperMask = 4;

int moduleCount = 0;

void FillCatalogue()
{
    cls_Catalogue& catalogue = *omi_Singleton<cls_Catalogue>::Instance();
    catalogue.AddMessages(moduleNumber, kflC_Messages);
    catalogue.AddLabels("kflC_TypeLabelMap", kflC_TypeLabelMap::Rows);
}

} // namespace

void QRTVdbKflC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kflC_ArchEntry());
    const kflC_FilterContainer container;
    const kflC_FCWrapper wrapper(container);
    ddr_Model::RegisterFilterContainer(wrapper);
    cls_RegisterClasses<kflC_Filter, kflC_ButterworthFilter, kflC_Chebyshev1Filter, kflC_Chebyshev2Filter,
                        kflC_OperatorFilter>();
    cls_RegisterClasses<kflC_FilterContainer>(containerMask);
    cls_RegisterClasses<kflC_FCWrapper>(wrapperMask);
    cls_RegisterClasses<kflC_FilterShortcut, kflC_FilterIMPLSC, kflC_FilterInFilterContainerShortcut,
                        kflC_FilterContainerShortcut, kflC_FilterContainerIMPLSC,
                        kflC_FilterContainerInModelShortcut>();
    kflC_RegisterOldClasses();
    FillCatalogue();
}

void QRTVdbKflC_finalize(int& tally)
{
    if (cls_StepDown(moduleCount, tally))
        ddr_Model::UnRegisterFilterContainer();
}

void kflC_formalize() {}
