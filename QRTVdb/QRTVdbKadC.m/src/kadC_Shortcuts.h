#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "kadC_Containers.h"

DDR_SHORTCUT(kadC_AdptMeshCtrl, 0x2680004, 0x2680006)
DDR_SHORTCUT(kadC_AdptMeshCtrlContainer, 0x2680007, 0x2680008)
DDR_SHORTCUT(kadC_AdptMeshDomain, 0x268000C, 0x268000E)
DDR_SHORTCUT(kadC_AdptMeshDomainContainer, 0x268000F, 0x2680010)
DDR_DICTIONARY_STEP(kadC_AdptMeshCtrlContainer, kadC_AdptMeshCtrl, 1, 0x2680005)
DDR_MODEL_STEP(kadC_AdptMeshCtrlContainer, 0x2680009, AdaptiveMeshControls,
               "QRTVdb/QRTVdbKadC.m/src/kadC_AdptMeshCtrlContainerShortcut")
DDR_DICTIONARY_STEP(kadC_AdptMeshDomainContainer, kadC_AdptMeshDomain, 1, 0x268000D)

/// Leads to an adaptive mesh control.
using kadC_AdptMeshCtrlShortcut = ddr_Shortcut<kadC_AdptMeshCtrl>;
using kadC_AdptMeshCtrlIMPLSC = ddr_ShortcutImpl<kadC_AdptMeshCtrl>;
using kadC_AdptMeshCtrlInAdptMeshCtrlContainerShortcut =
    ddr_DictionaryShortcut<kadC_AdptMeshCtrlContainer, kadC_AdptMeshCtrl, 1>;

/// Leads to the adaptive mesh controls of a model.
using kadC_AdptMeshCtrlContainerShortcut = ddr_Shortcut<kadC_AdptMeshCtrlContainer>;
using kadC_AdptMeshCtrlContainerIMPLSC = ddr_ShortcutImpl<kadC_AdptMeshCtrlContainer>;
using kadC_AdptMeshCtrlContainerInModelShortcut =
    ddr_MemberShortcut<ddr_Model, kadC_AdptMeshCtrlContainer, 1>;

/// Leads to an adaptive mesh domain.
using kadC_AdptMeshDomainShortcut = ddr_Shortcut<kadC_AdptMeshDomain>;
using kadC_AdptMeshDomainIMPLSC = ddr_ShortcutImpl<kadC_AdptMeshDomain>;
using kadC_AdptMeshDomainInAdptMeshDomainContainerShortcut =
    ddr_DictionaryShortcut<kadC_AdptMeshDomainContainer, kadC_AdptMeshDomain, 1>;

/// Leads to adaptive mesh domains; the step to them is their owner's.
using kadC_AdptMeshDomainContainerShortcut = ddr_Shortcut<kadC_AdptMeshDomainContainer>;
using kadC_AdptMeshDomainContainerIMPLSC = ddr_ShortcutImpl<kadC_AdptMeshDomainContainer>;

extern template class ddr_ShortcutImpl<kadC_AdptMeshCtrl>;
extern template class ddr_Shortcut<kadC_AdptMeshCtrl>;
extern template class ddr_DictionaryShortcut<kadC_AdptMeshCtrlContainer, kadC_AdptMeshCtrl, 1>;
extern template class ddr_ShortcutImpl<kadC_AdptMeshCtrlContainer>;
extern template class ddr_Shortcut<kadC_AdptMeshCtrlContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kadC_AdptMeshCtrlContainer, 1>;
extern template class ddr_ShortcutImpl<kadC_AdptMeshDomain>;
extern template class ddr_Shortcut<kadC_AdptMeshDomain>;
extern template class ddr_DictionaryShortcut<kadC_AdptMeshDomainContainer, kadC_AdptMeshDomain, 1>;
extern template class ddr_ShortcutImpl<kadC_AdptMeshDomainContainer>;
extern template class ddr_Shortcut<kadC_AdptMeshDomainContainer>;
