#include "kadC_old.h"

#include "dbc_DeclaredVersion.h"
#include "dbc_NewFields.h"

namespace
{

constexpr unsigned oldClassMask = 5;

constexpr dbc_OldIdentity control = dbc_Root(0x2680001);
constexpr auto attributes = dbc_Attributes(
    dbc_Enum("advection"), dbc_Enum("smoothingAlgorithm"), dbc_Enum("smoothingPriority"),
    dbc_Double("initialFeatureAngle"), dbc_Double("transitionFeatureAngle"), dbc_Enum("momentumAdvection"),
    dbc_Enum("remeshPredictor"), dbc_Double("curvatureRefinement"), dbc_Double("volumetricSmoothingWeight"),
    dbc_Double("laplacianSmoothingWeight"), dbc_Double("equipotentialSmoothingWeight"),
    dbc_Double("meshConstraintAngle"));

} // namespace

void* Upgrade_kadC_AdptMeshCtrl_302_829(const dbc_Row& input, dbc_Row& output, int)
{
    static const rfm_FieldHandle smoothingAlgorithm = dbc_Field("smoothingAlgorithm");
    dbc_MapText(input, output, smoothingAlgorithm, {{"GEOMETRY_ENHANCED", "ANALYSIS_PRODUCT_DEFAULT"}},
                dbc_Fold::UpperCase);
    return nullptr;
}

void* Upgrade_kadC_AdptMeshCtrl_829_860(const dbc_Row&, dbc_Row& output, int)
{
    static const dbc_NewField added[] = {{"originalConfigurationProjectionWeight", 1.0},
                                         {"standardVolumetricSmoothingWeight", 0.0}};
    dbc_PutNew(output, added);
    return nullptr;
}

DBC_OLD_CLASS(kadC_AdptMeshCtrl, 302, control, dbc_Step(829, DBC_FUNCTION(Upgrade_kadC_AdptMeshCtrl_302_829)),
              attributes)

DBC_OLD_CLASS(kadC_AdptMeshCtrl, 829, control, dbc_Step(860, DBC_FUNCTION(Upgrade_kadC_AdptMeshCtrl_829_860)),
              attributes)

void kadC_RegisterOldClasses()
{
    dbc_RegisterOldClasses<kadC_AdptMeshCtrl_302, kadC_AdptMeshCtrl_829>(oldClassMask);
}
