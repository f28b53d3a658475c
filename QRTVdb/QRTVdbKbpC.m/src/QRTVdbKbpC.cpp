#include "QRTVdbKbpC.h"

#include "cls_Module.h"
#include "ddr_Model.h"
#include "kbpC_ArbitraryProfile.h"
#include "kbpC_BeamProfileContainer.h"
#include "kbpC_BeamProfileContainerSC.h"
#include "kbpC_BeamProfileDescriptionMap.h"
#include "kbpC_BeamProfileLabelMap.h"
#include "kbpC_BoxProfile.h"
#include "kbpC_CbeamProfile.h"
#include "kbpC_CircularProfile.h"
#include "kbpC_GeneralizedProfile.h"
#include "kbpC_HatProfile.h"
#include "kbpC_HexagonalProfile.h"
#include "kbpC_IbeamProfile.h"
#include "kbpC_LbeamProfile.h"
#include "kbpC_PipeProfile.h"
#include "kbpC_RectangularProfile.h"
#include "kbpC_TbeamProfile.h"
#include "kbpC_TrapezoidalProfile.h"
#include "kbpC_assert.h"
#include "kbpC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 612;
constexpr unsigned containerMask = 3;
constexpr unsigned wrapperMask = 4;

int moduleCount = 0;

void FillCatalogue()
{
    cls_Catalogue& catalogue = *omi_Singleton<cls_Catalogue>::Instance();
    catalogue.AddMessages(moduleNumber, kbpC_Messages);
    catalogue.AddLabels("kbpC_BeamProfileLabelMap", kbpC_BeamProfileLabelMap::Rows);
    catalogue.AddLabels("kbpC_BeamProfileDescriptionMap", kbpC_BeamProfileDescriptionMap::Rows);
}

} // namespace

void QRTVdbKbpC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kbpC_ArchEntry());
    const kbpC_BeamProfileContainer container;
    const kbpC_BPCWrapper wrapper(container);
    ddr_Model::RegisterBeamProfileContainer(wrapper);
    cls_RegisterClasses<kbpC_BeamProfile, kbpC_GeneralizedProfile, kbpC_CircularProfile,
                        kbpC_HexagonalProfile, kbpC_PipeProfile, kbpC_IbeamProfile, kbpC_BoxProfile,
                        kbpC_ArbitraryProfile, kbpC_RectangularProfile, kbpC_LbeamProfile, kbpC_TbeamProfile,
                        kbpC_TrapezoidalProfile, kbpC_CbeamProfile, kbpC_HatProfile>();
    cls_RegisterClasses<kbpC_BeamProfileContainer>(containerMask);
    cls_RegisterClasses<kbpC_BPCWrapper>(wrapperMask);
    cls_RegisterClasses<kbpC_BeamProfileShortcut, kbpC_BeamProfileIMPLSC,
                        kbpC_BeamProfileInBeamProfileContainerShortcut, kbpC_BeamProfileContainerShortcut,
                        kbpC_BeamProfileContainerIMPLSC, kbpC_BeamProfileContainerInModelShortcut>();
    kbpC_RegisterOldClasses();
    FillCatalogue();
}

void QRTVdbKbpC_finalize(int& tally)
{
    if (!cls_StepDown(moduleCount, tally))
        return;
    ddr_Model::UnRegisterBeamProfileContainer();
    omi_Singleton<kbpC_BeamProfileLabelMap>::Finalize();
    omi_Singleton<kbpC_BeamProfileDescriptionMap>::Finalize();
}
