#pragma once

#include "ddr_DictionaryShortcut.h"
#include "klcC_LoadCaseCont.h"

DDR_SHORTCUT(klcC_LoadCase, 0x2DC0004, 0x2DC0003)
DDR_SHORTCUT(klcC_LoadCaseCont, 0x2DC0007, 0x2DC0006)
DDR_DICTIONARY_STEP(klcC_LoadCaseCont, klcC_LoadCase, 1, 0x2DC0005)

// The module does not register these: who owns load cases has the step to them, and registers them with it.

/// Leads to a load case.
using klcC_LoadCaseShortcut = ddr_Shortcut<klcC_LoadCase>;
using klcC_LoadCaseIMPLSC = ddr_ShortcutImpl<klcC_LoadCase>;
using klcC_LoadCaseInLoadCaseContShortcut = ddr_DictionaryShortcut<klcC_LoadCaseCont, klcC_LoadCase, 1>;

/// Leads to load cases.
using klcC_LoadCaseContShortcut = ddr_Shortcut<klcC_LoadCaseCont>;
using klcC_LoadCaseContIMPLSC = ddr_ShortcutImpl<klcC_LoadCaseCont>;

extern template class ddr_ShortcutImpl<klcC_LoadCase>;
extern template class ddr_Shortcut<klcC_LoadCase>;
extern template class ddr_DictionaryShortcut<klcC_LoadCaseCont, klcC_LoadCase, 1>;
extern template class ddr_ShortcutImpl<klcC_LoadCaseCont>;
extern template class ddr_Shortcut<klcC_LoadCaseCont>;
