#pragma once

#include "ddr_Shortcut.h"
#include "karC_RemeshingRule.h"

DDR_SHORTCUT(karC_RemeshingRule, 0x3570003, 0x3570005)

// The step from the repository, 0x3570004, has a row of the type table but no class: the shortcut to the
// repository, which it would hold, has no row.

/// Leads to a remeshing rule.
using karC_RemeshingRuleShortcut = ddr_Shortcut<karC_RemeshingRule>;
using karC_RemeshingRuleIMPLSC = ddr_ShortcutImpl<karC_RemeshingRule>;

extern template class ddr_ShortcutImpl<karC_RemeshingRule>;
extern template class ddr_Shortcut<karC_RemeshingRule>;
