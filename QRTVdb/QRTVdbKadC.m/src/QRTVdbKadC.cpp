#include "QRTVdbKadC.h"

#include "cls_Module.h"
#include "ddr_Model.h"
#include "kadC_Containers.h"
#include "kadC_Shortcuts.h"
#include "kadC_assert.h"
#include "kadC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 616;
constexpr unsigned containerMask = 3;
constexpr unsigned wrapperMask = 4;

int moduleCount = 0;

} // namespace

void QRTVdbKadC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kadC_ArchEntry());
    const kadC_AdptMeshCtrlContainer container;
    const kadC_AMCCWrapper wrapper(container);
    ddr_Model::RegisterAdaptiveMeshControlContainer(wrapper);
    cls_RegisterClasses<kadC_AdptMeshCtrl, kadC_AdptMeshDomain>();
    cls_RegisterClasses<kadC_AdptMeshCtrlContainer, kadC_AdptMeshDomainContainer>(containerMask);
    cls_RegisterClasses<kadC_AMCCWrapper>(wrapperMask);
    cls_RegisterClasses<kadC_AdptMeshCtrlShortcut, kadC_AdptMeshCtrlIMPLSC,
                        kadC_AdptMeshCtrlInAdptMeshCtrlContainerShortcut, kadC_AdptMeshCtrlContainerShortcut,
                        kadC_AdptMeshCtrlContainerIMPLSC, kadC_AdptMeshCtrlContainerInModelShortcut,
                        kadC_AdptMeshDomainShortcut, kadC_AdptMeshDomainIMPLSC,
                        kadC_AdptMeshDomainInAdptMeshDomainContainerShortcut,
                        kadC_AdptMeshDomainContainerShortcut, kadC_AdptMeshDomainContainerIMPLSC>();
    kadC_RegisterOldClasses();
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, kadC_Messages);
}

void QRTVdbKadC_finalize(int& tally)
{
    if (cls_StepDown(moduleCount, tally))
        ddr_Model::UnRegisterAdaptiveMeshControlContainer();
}

void kadC_formalize() {}
