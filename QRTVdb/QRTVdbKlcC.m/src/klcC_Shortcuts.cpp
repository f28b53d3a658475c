#include "klcC_Shortcuts.h"

template class ddr_ShortcutImpl<klcC_LoadCase>;
template class ddr_Shortcut<klcC_LoadCase>;
template class ddr_DictionaryShortcut<klcC_LoadCaseCont, klcC_LoadCase, 1>;
template class ddr_ShortcutImpl<klcC_LoadCaseCont>;
template class ddr_Shortcut<klcC_LoadCaseCont>;
