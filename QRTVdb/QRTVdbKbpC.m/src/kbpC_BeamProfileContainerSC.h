#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "kbpC_BeamProfileContainer.h"

DDR_SHORTCUT(kbpC_BeamProfile, 0x2640010, 0x2640012)
DDR_SHORTCUT(kbpC_BeamProfileContainer, 0x264000E, 0x264000F)
DDR_DICTIONARY_STEP(kbpC_BeamProfileContainer, kbpC_BeamProfile, 1, 0x2640011)
DDR_MODEL_STEP(kbpC_BeamProfileContainer, 0x2640013, BeamProfiles,
               "QRTVdb/QRTVdbKbpC.m/src/kbpC_BeamProfileContainerSC")

/// Leads to a beam profile.
using kbpC_BeamProfileShortcut = ddr_Shortcut<kbpC_BeamProfile>;
using kbpC_BeamProfileIMPLSC = ddr_ShortcutImpl<kbpC_BeamProfile>;
using kbpC_BeamProfileInBeamProfileContainerShortcut =
    ddr_DictionaryShortcut<kbpC_BeamProfileContainer, kbpC_BeamProfile, 1>;

/// Leads to the beam profiles of a model.
using kbpC_BeamProfileContainerShortcut = ddr_Shortcut<kbpC_BeamProfileContainer>;
using kbpC_BeamProfileContainerIMPLSC = ddr_ShortcutImpl<kbpC_BeamProfileContainer>;
using kbpC_BeamProfileContainerInModelShortcut = ddr_MemberShortcut<ddr_Model, kbpC_BeamProfileContainer, 1>;

extern template class ddr_ShortcutImpl<kbpC_BeamProfile>;
extern template class ddr_Shortcut<kbpC_BeamProfile>;
extern template class ddr_DictionaryShortcut<kbpC_BeamProfileContainer, kbpC_BeamProfile, 1>;
extern template class ddr_ShortcutImpl<kbpC_BeamProfileContainer>;
extern template class ddr_Shortcut<kbpC_BeamProfileContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kbpC_BeamProfileContainer, 1>;
