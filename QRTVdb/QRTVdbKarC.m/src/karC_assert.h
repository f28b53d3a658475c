#pragma once

#include "cls_Module.h"

/// Rules of remeshing rules. Four of them are checked by callers outside.
enum karC_ErrorEnm : int
{
    karC_SizesOutOfOrder = 0,
    karC_SuppressedRule = 1,
    karC_UnknownStep = 2,
    karC_UnfitStep = 3,
    karC_NoErrorVariable = 4,
    karC_OrphanMesh = 5,
    karC_OneTargetOnly = 6,
    karC_NegativeTarget = 7,
    karC_ZeroTarget = 8,
    karC_BadMeshBias = 9,
    karC_BadMinimumSize = 10,
    karC_BadMaximumSize = 11,
    karC_BadCoarseningFactor = 12,
    karC_BadRefinementFactor = 13
};

/// Messages of the rules.
OVR_EXPORT extern const cls_MessageTable karC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void karC_Assert(bool condition, karC_ErrorEnm code);
