#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "kamC_AmplitudeContainer.h"
#include "kamC_EquallySpaced.h"
#include "kamC_Tabular.h"

DDR_SHORTCUT(kamC_Amplitude, 0x244000D, 0x244000F)
DDR_SHORTCUT(kamC_AmplitudeContainer, 0x2440010, 0x2440011)
DDR_SHORTCUT(kamC_BaselineCorrection, 0x2440012, 0x2440015)
DDR_MODEL_STEP(kamC_AmplitudeContainer, 0x2440016, Amplitudes,
               "QRTVdb/QRTVdbKamC.m/src/kamC_AmplitudeContainerShortcut")
DDR_DICTIONARY_STEP(kamC_AmplitudeContainer, kamC_Amplitude, 1, 0x244000E)
DDR_MEMBER_STEP(kamC_Amplitude, kamC_BaselineCorrection, 1, 0x2440013, kamC_EquallySpaced, baselineCorrection,
                "QRTVdb/QRTVdbKamC.m/src/kamC_BaselineCorrectionShortcut")
DDR_MEMBER_STEP(kamC_Amplitude, kamC_BaselineCorrection, 2, 0x2440014, kamC_Tabular, baselineCorrection,
                "QRTVdb/QRTVdbKamC.m/src/kamC_BaselineCorrectionShortcut")

/// The baseline correction of an amplitude of any kind; absent in kinds that have none.
template <>
struct ddr_MemberStepOf<kamC_Amplitude, kamC_BaselineCorrection, 3>
{
    static constexpr unsigned id = 0x2440018;
    static constexpr unsigned ownerId = kamC_Amplitude::TypeId();

    static const char* Word() { return kamC_Tabular::baselineCorrectionCmd(); }
    OVR_EXPORT static kamC_BaselineCorrection* Get(kamC_Amplitude& amplitude);
    OVR_EXPORT static const kamC_BaselineCorrection* ConstGet(const kamC_Amplitude& amplitude);
};

/// Leads to an amplitude.
using kamC_AmplitudeShortcut = ddr_Shortcut<kamC_Amplitude>;
using kamC_AmplitudeIMPLSC = ddr_ShortcutImpl<kamC_Amplitude>;
using kamC_AmplitudeInAmplitudeContainerShortcut =
    ddr_DictionaryShortcut<kamC_AmplitudeContainer, kamC_Amplitude, 1>;

/// Leads to the amplitudes of a model.
using kamC_AmplitudeContainerShortcut = ddr_Shortcut<kamC_AmplitudeContainer>;
using kamC_AmplitudeContainerIMPLSC = ddr_ShortcutImpl<kamC_AmplitudeContainer>;
using kamC_AmplitudeContainerInModelShortcut = ddr_MemberShortcut<ddr_Model, kamC_AmplitudeContainer, 1>;

/// Leads to the baseline correction of an amplitude.
using kamC_BaselineCorrectionShortcut = ddr_Shortcut<kamC_BaselineCorrection>;
using kamC_BaselineCorrectionIMPLSC = ddr_ShortcutImpl<kamC_BaselineCorrection>;
using kamC_BaselineCorrectionInEquallySpacedShortcut =
    ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;
using kamC_BaselineCorrectionInTabularShortcut =
    ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 2>;
using kamC_BaselineCorrectionInAmplitudeShortcut =
    ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 3>;

extern template class ddr_ShortcutImpl<kamC_Amplitude>;
extern template class ddr_Shortcut<kamC_Amplitude>;
extern template class ddr_DictionaryShortcut<kamC_AmplitudeContainer, kamC_Amplitude, 1>;
extern template class ddr_ShortcutImpl<kamC_AmplitudeContainer>;
extern template class ddr_Shortcut<kamC_AmplitudeContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kamC_AmplitudeContainer, 1>;
extern template class ddr_ShortcutImpl<kamC_BaselineCorrection>;
extern template class ddr_Shortcut<kamC_BaselineCorrection>;
extern template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 1>;
extern template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 2>;
extern template class ddr_MemberShortcut<kamC_Amplitude, kamC_BaselineCorrection, 3>;
