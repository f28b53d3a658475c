#include "kadC_Shortcuts.h"

template class ddr_ShortcutImpl<kadC_AdptMeshCtrl>;
template class ddr_Shortcut<kadC_AdptMeshCtrl>;
template class ddr_DictionaryShortcut<kadC_AdptMeshCtrlContainer, kadC_AdptMeshCtrl, 1>;
template class ddr_ShortcutImpl<kadC_AdptMeshCtrlContainer>;
template class ddr_Shortcut<kadC_AdptMeshCtrlContainer>;
template class ddr_MemberShortcut<ddr_Model, kadC_AdptMeshCtrlContainer, 1>;
template class ddr_ShortcutImpl<kadC_AdptMeshDomain>;
template class ddr_Shortcut<kadC_AdptMeshDomain>;
template class ddr_DictionaryShortcut<kadC_AdptMeshDomainContainer, kadC_AdptMeshDomain, 1>;
template class ddr_ShortcutImpl<kadC_AdptMeshDomainContainer>;
template class ddr_Shortcut<kadC_AdptMeshDomainContainer>;
