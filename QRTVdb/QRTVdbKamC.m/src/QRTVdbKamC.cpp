#include "QRTVdbKamC.h"

#include "cls_Module.h"
#include "ddr_Model.h"
#include "kamC_ActuatorAmplitude.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_BaselineCorrection.h"
#include "kamC_CorrelationComponent.h"
#include "kamC_Decay.h"
#include "kamC_EquallySpaced.h"
#include "kamC_Modulated.h"
#include "kamC_Periodic.h"
#include "kamC_PsdDefinition.h"
#include "kamC_Shortcuts.h"
#include "kamC_SmoothStep.h"
#include "kamC_SolutionDependent.h"
#include "kamC_Spectrum.h"
#include "kamC_SpectrumAmplitude.h"
#include "kamC_Tabular.h"
#include "kamC_TimeLabelMap.h"
#include "kamC_TypeLabelMap.h"
#include "kamC_UserAmplitude.h"
#include "kamC_assert.h"
#include "kamC_old.h"

namespace
{

constexpr unsigned short moduleNumber = 580;
constexpr unsigned wrapperMask = 4;

int moduleCount = 0;

void FillCatalogue()
{
    cls_Catalogue& catalogue = *omi_Singleton<cls_Catalogue>::Instance();
    catalogue.AddMessages(moduleNumber, kamC_Messages);
    catalogue.AddLabels("kamC_TypeLabelMap", kamC_TypeLabelMap::Rows);
    catalogue.AddLabels("kamC_TimeLabelMap", kamC_TimeLabelMap::Rows);
}

} // namespace

void QRTVdbKamC_initialize(int& tally)
{
    if (!cls_StepUp(moduleCount, tally))
        return;
    typ_ArchCompTable::InsertEntry(moduleNumber, kamC_ArchEntry());
    const kamC_AmplitudeContainer container;
    const kamC_ACWrapper wrapper(container);
    ddr_Model::RegisterAmplitudeContainer(wrapper);
    cls_RegisterClasses<kamC_BaselineCorrection, kamC_Amplitude, kamC_Decay, kamC_EquallySpaced,
                        kamC_Modulated, kamC_Periodic, kamC_SolutionDependent, kamC_Tabular,
                        kamC_PsdDefinition, kamC_Spectrum, kamC_SmoothStep, kamC_AmplitudeContainer>();
    cls_RegisterClasses<kamC_ACWrapper>(wrapperMask);
    cls_RegisterClasses<kamC_AmplitudeShortcut, kamC_AmplitudeIMPLSC,
                        kamC_AmplitudeInAmplitudeContainerShortcut, kamC_AmplitudeContainerShortcut,
                        kamC_AmplitudeContainerIMPLSC, kamC_BaselineCorrectionShortcut,
                        kamC_BaselineCorrectionIMPLSC, kamC_BaselineCorrectionInEquallySpacedShortcut,
                        kamC_BaselineCorrectionInTabularShortcut, kamC_AmplitudeContainerInModelShortcut,
                        kamC_BaselineCorrectionInAmplitudeShortcut>();
    cls_RegisterClasses<kamC_ActuatorAmplitude, kamC_UserAmplitude, kamC_SpectrumAmplitude,
                        kamC_CorrelationComponent>();
    kamC_RegisterOldClasses();
    FillCatalogue();
}

void QRTVdbKamC_finalize(int& tally)
{
    if (cls_StepDown(moduleCount, tally))
        ddr_Model::UnRegisterAmplitudeContainer();
}
