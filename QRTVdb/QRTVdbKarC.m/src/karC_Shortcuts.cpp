#include "karC_Shortcuts.h"

template class ddr_ShortcutImpl<karC_RemeshingRule>;
template class ddr_Shortcut<karC_RemeshingRule>;
