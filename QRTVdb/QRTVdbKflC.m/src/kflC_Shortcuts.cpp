#include "kflC_Shortcuts.h"

template class ddr_ShortcutImpl<kflC_Filter>;
template class ddr_Shortcut<kflC_Filter>;
template class ddr_DictionaryShortcut<kflC_FilterContainer, kflC_Filter, 1>;
template class ddr_ShortcutImpl<kflC_FilterContainer>;
template class ddr_Shortcut<kflC_FilterContainer>;
template class ddr_MemberShortcut<ddr_Model, kflC_FilterContainer, 1>;
