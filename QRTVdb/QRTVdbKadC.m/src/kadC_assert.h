#pragma once

#include "cls_Module.h"

/// Rules of adaptive meshing. Three of them are checked by callers outside.
enum kadC_ErrorEnm : int
{
    kadC_BadFrequency = 0,
    kadC_BadInitialSweeps = 1,
    kadC_BadSweeps = 2,
    kadC_BadUpwindingFactor = 3,
    kadC_BadInitialFeatureAngle = 4,
    kadC_BadTransitionFeatureAngle = 5,
    kadC_BadVolumetricWeight = 6,
    kadC_BadLaplacianWeight = 7,
    kadC_BadEquipotentialWeight = 8,
    kadC_BadMeshConstraintAngle = 9,
    kadC_BadSumOfWeights = 10,
    kadC_NoRegion = 11,
    kadC_BadCurvatureRefinement = 12,
    kadC_BadProjectionWeight = 13
};

/// Messages of the adaptive meshing rules.
OVR_EXPORT extern const cls_MessageTable kadC_Messages;

/// Returns if `condition` is true; otherwise throws `nex_PrimException<atr_String, 1>` with the message of
/// `code`. An unknown code throws with an empty text.
OVR_EXPORT void kadC_Assert(bool condition, kadC_ErrorEnm code);
