#pragma once

#include "ddr_DictionaryShortcut.h"
#include "ddr_MemberShortcut.h"
#include "kflC_FilterContainer.h"

DDR_SHORTCUT(kflC_Filter, 0x3510006, 0x3510008)
DDR_SHORTCUT(kflC_FilterContainer, 0x3510009, 0x351000A)
DDR_DICTIONARY_STEP(kflC_FilterContainer, kflC_Filter, 1, 0x3510007)
DDR_MODEL_STEP(kflC_FilterContainer, 0x351000B, Filters,
               "QRTVdb/QRTVdbKflC.m/src/kflC_FilterContainerShortcut")

/// Leads to a filter.
using kflC_FilterShortcut = ddr_Shortcut<kflC_Filter>;
using kflC_FilterIMPLSC = ddr_ShortcutImpl<kflC_Filter>;
using kflC_FilterInFilterContainerShortcut = ddr_DictionaryShortcut<kflC_FilterContainer, kflC_Filter, 1>;

/// Leads to the filters of a model.
using kflC_FilterContainerShortcut = ddr_Shortcut<kflC_FilterContainer>;
using kflC_FilterContainerIMPLSC = ddr_ShortcutImpl<kflC_FilterContainer>;
using kflC_FilterContainerInModelShortcut = ddr_MemberShortcut<ddr_Model, kflC_FilterContainer, 1>;

extern template class ddr_ShortcutImpl<kflC_Filter>;
extern template class ddr_Shortcut<kflC_Filter>;
extern template class ddr_DictionaryShortcut<kflC_FilterContainer, kflC_Filter, 1>;
extern template class ddr_ShortcutImpl<kflC_FilterContainer>;
extern template class ddr_Shortcut<kflC_FilterContainer>;
extern template class ddr_MemberShortcut<ddr_Model, kflC_FilterContainer, 1>;
