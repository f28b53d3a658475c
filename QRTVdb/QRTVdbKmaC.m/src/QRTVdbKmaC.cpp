#include "QRTVdbKmaC.h"

#include "cls_Module.h"
#include "ddr_Model.h"
#include "kmaC_Shortcuts.h"
#include "kmaC_assert.h"
#include "kmaC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 568;
constexpr unsigned repositoryMask = 3;
constexpr unsigned wrapperMask = 4;

int moduleCount = 0;

void RegisterClasses()
{
    cls_RegisterClasses<kmaC_Material, kmaC_MaterialOption, kmaC_BiaxialTestData, kmaC_CombinedTestData,
                        kmaC_Creep, kmaC_CycledPlastic, kmaC_CyclicHardening, kmaC_DeformationPlasticity,
                        kmaC_Elastic, kmaC_FailStrain, kmaC_FailStress, kmaC_Foam, kmaC_FoamHardening,
                        kmaC_Hyperelastic, kmaC_Hyperfoam, kmaC_Hypoelastic, kmaC_Ornl, kmaC_PlanarTestData,
                        kmaC_Plastic, kmaC_Potential, kmaC_RateDependent, kmaC_ShearTestData,
                        kmaC_SimpleShearTestData, kmaC_Trs, kmaC_UniaxialTestData, kmaC_Viscoelastic,
                        kmaC_VolumetricTestData, kmaC_MaterialTable>();
    cls_RegisterClasses<kmaC_MaterialContainer>(repositoryMask);
    cls_RegisterClasses<kmaC_Hysteresis, kmaC_Regularization>();
    cls_RegisterClasses<kmaC_MaterialShortcut, kmaC_MaterialInMaterialContainerShortcut, kmaC_MaterialIMPLSC,
                        kmaC_MaterialContainerShortcut, kmaC_MaterialContainerIMPLSC,
                        kmaC_MaterialOptionShortcut, kmaC_MaterialOptionInMaterialShortcut,
                        kmaC_MaterialOptionInMaterialOptionShortcut, kmaC_MaterialOptionIMPLSC>();
    cls_RegisterClasses<kmaC_Viscous, kmaC_AnnealTemperature, kmaC_MaterialContainerInModelShortcut>();
    cls_RegisterClasses<kmaC_MCWrapper>(wrapperMask);
    cls_RegisterClasses<
        kmaC_MatOptionListShortcut, kmaC_MatOptionListIMPLSC, kmaC_MaterialOptionInMatOptionListShortcut,
        kmaC_UniaxialTestsListInMaterialOptionShortcut, kmaC_BiaxialTestsListInMaterialOptionShortcut,
        kmaC_PlanarTestsListInMaterialOptionShortcut>();
    cls_RegisterClasses<kmaC_LowDensityFoam, kmaC_Shear, kmaC_MatOptionList, kmaC_TensileFailure,
                        kmaC_PlasticityCorrection, kmaC_DamageEvolutionListInMaterialOptionShortcut>();
}

} // namespace

void QRTVdbKmaC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kmaC_ArchEntry());
    const kmaC_MaterialContainer container;
    const kmaC_MCWrapper wrapper(container);
    ddr_Model::RegisterMaterialContainer(wrapper);
    RegisterClasses();
    kmaC_RegisterOldClasses();
    omi_Singleton<cls_Catalogue>::Instance()->AddMessages(moduleNumber, kmaC_Messages);
}

void QRTVdbKmaC_finalize(int& tally)
{
    if (cls_StepDown(moduleCount, tally))
        ddr_Model::UnRegisterMaterialContainer();
}
