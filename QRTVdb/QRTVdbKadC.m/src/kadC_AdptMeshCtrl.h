#pragma once

#include "cls_Class.h"

/// How an adaptive mesh is smoothed, and how the solution is carried over to it. Angles are in degrees.
class OVR_EXPORT kadC_AdptMeshCtrl : public mem_AllocationOperators
{
    CLS_CONCRETE_ROOT(kadC_AdptMeshCtrl, 0x2680001, 860)
    CLS_WORD(constructor, "AdaptiveMeshControl")
    CLS_WORD(adaptiveMeshControlRepository, "adaptiveMeshControls")
    CLS_WORD(setValues, "setValues")
    CLS_WORD(name, "name")
    OMU_ENUM(AdvectionEnm, FIRST_ORDER_ADVECTION = 0, SECOND_ORDER_ADVECTION = 1)
    OMU_ENUM(SmoothingAlgorithmEnm, STANDARD = 0, GEOMETRY_ENHANCED = 1, ANALYSIS_PRODUCT_DEFAULT = 2)
    OMU_ENUM(SmoothingPriorityEnm, UNIFORM = 0, GRADED = 1)
    OMU_ENUM(MomentumAdvectionEnm, ELEMENT_CENTER_PROJECTION = 0, HALF_INDEX_SHIFT = 1)
    OMU_ENUM(RemeshPredictorEnm, CURRENT = 0, PREVIOUS = 1)
    OMU_ENUM(AutomaticEnm, AUTOMATIC = 0, FACTOR = 1)

    CLS_ATTRIBUTE_AS(AdvectionEnm, advection, "remapping", AdvectionEnm::SECOND_ORDER_ADVECTION)
    CLS_ATTRIBUTE(SmoothingAlgorithmEnm, smoothingAlgorithm, SmoothingAlgorithmEnm::ANALYSIS_PRODUCT_DEFAULT)
    CLS_ATTRIBUTE(SmoothingPriorityEnm, smoothingPriority, SmoothingPriorityEnm::UNIFORM)
    CLS_ATTRIBUTE(double, initialFeatureAngle, 30.0)
    CLS_ATTRIBUTE(double, transitionFeatureAngle, 30.0)
    CLS_ATTRIBUTE(MomentumAdvectionEnm, momentumAdvection, MomentumAdvectionEnm::ELEMENT_CENTER_PROJECTION)
    CLS_ATTRIBUTE_AS(RemeshPredictorEnm, remeshPredictor, "meshingPredictor", RemeshPredictorEnm::CURRENT)
    CLS_ATTRIBUTE(double, curvatureRefinement, 1.0)
    CLS_ATTRIBUTE(double, volumetricSmoothingWeight, 1.0)
    CLS_ATTRIBUTE_AT(double, 12, standardVolumetricSmoothingWeight, 0.0)
    CLS_ATTRIBUTE_AT(double, 9, laplacianSmoothingWeight, 0.0)
    CLS_ATTRIBUTE(double, equipotentialSmoothingWeight, 0.0)
    CLS_ATTRIBUTE(double, meshConstraintAngle, 60.0)
    CLS_ATTRIBUTE_AT(double, 13, originalConfigurationProjectionWeight, 1.0)

    /// Angles from 0 to 180, weights and refinement not negative.
    void AssertValid() const;
    CLS_END
};
