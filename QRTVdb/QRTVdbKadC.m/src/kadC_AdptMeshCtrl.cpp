#include "kadC_AdptMeshCtrl.h"

#include "kadC_assert.h"

CLS_IMPLEMENT(kadC_AdptMeshCtrl)

namespace
{

bool IsAngle(double degrees)
{
    return 0.0 <= degrees && degrees <= 180.0;
}

} // namespace

void kadC_AdptMeshCtrl::AssertValid() const
{
    kadC_Assert(IsAngle(initialFeatureAngle), kadC_BadInitialFeatureAngle);
    kadC_Assert(IsAngle(transitionFeatureAngle), kadC_BadTransitionFeatureAngle);
    kadC_Assert(volumetricSmoothingWeight >= 0.0, kadC_BadVolumetricWeight);
    kadC_Assert(standardVolumetricSmoothingWeight >= 0.0, kadC_BadVolumetricWeight);
    kadC_Assert(laplacianSmoothingWeight >= 0.0, kadC_BadLaplacianWeight);
    kadC_Assert(equipotentialSmoothingWeight >= 0.0, kadC_BadEquipotentialWeight);
    kadC_Assert(originalConfigurationProjectionWeight >= 0.0, kadC_BadProjectionWeight);
    kadC_Assert(IsAngle(meshConstraintAngle), kadC_BadMeshConstraintAngle);
    kadC_Assert(curvatureRefinement >= 0.0, kadC_BadCurvatureRefinement);
}
