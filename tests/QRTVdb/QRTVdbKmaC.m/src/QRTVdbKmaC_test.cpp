#include "QRTVdbKmaC.h"

#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "ddr_DdbContainer.h"
#include "kmaC_Shortcuts.h"

#include <algorithm>

namespace
{

constexpr unsigned moduleNumber = 568;

TEST(QRTVdbKmaC, RegistersItsClassesInTheOrderOfTheirIds)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"kmaC_Material", 7},
                                            {"kmaC_MaterialOption", 7},
                                            {"kmaC_BiaxialTestData", 7},
                                            {"kmaC_CombinedTestData", 7},
                                            {"kmaC_Creep", 7},
                                            {"kmaC_CycledPlastic", 7},
                                            {"kmaC_CyclicHardening", 7},
                                            {"kmaC_DeformationPlasticity", 7},
                                            {"kmaC_Elastic", 7},
                                            {"kmaC_FailStrain", 7},
                                            {"kmaC_FailStress", 7},
                                            {"kmaC_Foam", 7},
                                            {"kmaC_FoamHardening", 7},
                                            {"kmaC_Hyperelastic", 7},
                                            {"kmaC_Hyperfoam", 7},
                                            {"kmaC_Hypoelastic", 7},
                                            {"kmaC_Ornl", 7},
                                            {"kmaC_PlanarTestData", 7},
                                            {"kmaC_Plastic", 7},
                                            {"kmaC_Potential", 7},
                                            {"kmaC_RateDependent", 7},
                                            {"kmaC_ShearTestData", 7},
                                            {"kmaC_SimpleShearTestData", 7},
                                            {"kmaC_Trs", 7},
                                            {"kmaC_UniaxialTestData", 7},
                                            {"kmaC_Viscoelastic", 7},
                                            {"kmaC_VolumetricTestData", 7},
                                            {"kmaC_MaterialTable", 7},
                                            {"kmaC_MaterialContainer", 3},
                                            {"kmaC_Hysteresis", 7},
                                            {"kmaC_Regularization", 7},
                                            {"kmaC_MaterialShortcut", 7},
                                            {"kmaC_MaterialInMaterialContainerShortcut", 7},
                                            {"kmaC_MaterialIMPLSC", 7},
                                            {"kmaC_MaterialContainerShortcut", 7},
                                            {"kmaC_MaterialContainerIMPLSC", 7},
                                            {"kmaC_MaterialOptionShortcut", 7},
                                            {"kmaC_MaterialOptionInMaterialShortcut", 7},
                                            {"kmaC_MaterialOptionInMaterialOptionShortcut", 7},
                                            {"kmaC_MaterialOptionIMPLSC", 7},
                                            {"kmaC_Viscous", 7},
                                            {"kmaC_AnnealTemperature", 7},
                                            {"kmaC_MaterialContainerInModelShortcut", 7},
                                            {"kmaC_MCWrapper", 4},
                                            {"kmaC_MatOptionListShortcut", 7},
                                            {"kmaC_MatOptionListIMPLSC", 7},
                                            {"kmaC_MaterialOptionInMatOptionListShortcut", 7},
                                            {"kmaC_UniaxialTestsListInMaterialOptionShortcut", 7},
                                            {"kmaC_BiaxialTestsListInMaterialOptionShortcut", 7},
                                            {"kmaC_PlanarTestsListInMaterialOptionShortcut", 7},
                                            {"kmaC_LowDensityFoam", 7},
                                            {"kmaC_Shear", 7},
                                            {"kmaC_MatOptionList", 7},
                                            {"kmaC_TensileFailure", 7},
                                            {"kmaC_PlasticityCorrection", 7},
                                            {"kmaC_DamageEvolutionListInMaterialOptionShortcut", 7}}),
              RegisteredClassesOf(moduleNumber));
}

struct StepRow
{
    unsigned id;
    std::vector<const char*> attributes;
};

TEST(QRTVdbKmaC, DescribesItsShortcuts)
{
    const StepRow rows[] = {
        {0x238006A, {"impl"}},
        {0x238006B, {}},
        {0x238007C, {"parent"}},
        {0x2380067, {"impl"}},
        {0x2380069, {}},
        {0x2380068, {"name", "parent"}},
        {0x238006C, {"impl"}},
        {0x238006F, {}},
        {0x238006D, {"name", "parent"}},
        {0x238006E, {"name", "parent"}},
        {0x2380088, {"impl"}},
        {0x2380089, {}},
        {0x238008A, {"index", "parent"}},
        {0x238008B, {"parent"}},
        {0x238008C, {"parent"}},
        {0x238008D, {"parent"}},
        {0x23800B0, {"parent"}},
    };
    for (const StepRow& row : rows)
    {
        const cls_ClassMetadata* metadata = omi_Singleton<cls_MetadataRegistrar>::Instance()->Find(row.id);
        ASSERT_NE(nullptr, metadata) << std::hex << row.id;
        EXPECT_EQ(203, metadata->Version()) << std::hex << row.id;
        std::vector<std::string> attributes;
        for (const cls_AttributeMetadata& attribute : metadata->Attributes())
            attributes.emplace_back(attribute.field.Name().CString());
        EXPECT_EQ(std::vector<std::string>(row.attributes.begin(), row.attributes.end()), attributes)
            << std::hex << row.id;
    }
}

TEST(QRTVdbKmaC, GivesNewModelsTheirMaterials)
{
    const ddr_Model model;
    const mdl_Repository* const materials = model.ConstGetMaterials();
    ASSERT_NE(nullptr, materials);
    EXPECT_EQ(0x238005Au, materials->DynTypeId());
    EXPECT_EQ(materials, model.ConstGet("materials"));
}

TEST(QRTVdbKmaC, ActsOnItsFirstCallAndItsLast)
{
    const std::vector<RegisteredClass> before = RegisteredClassesOf(moduleNumber);
    int tally = 7;
    QRTVdbKmaC_initialize(tally);
    EXPECT_EQ(7, tally) << "the library has brought it up before";
    EXPECT_EQ(before, RegisteredClassesOf(moduleNumber));
    QRTVdbKmaC_finalize(tally);
    EXPECT_EQ(7, tally);
    EXPECT_NE(nullptr, ddr_Model().ConstGetMaterials());

    QRTVdbKmaC_finalize(tally);
    EXPECT_EQ(6, tally);
    EXPECT_EQ(nullptr, ddr_Model().ConstGetMaterials());
    QRTVdbKmaC_initialize(tally);
    EXPECT_EQ(7, tally);
    EXPECT_NE(nullptr, ddr_Model().ConstGetMaterials());
    EXPECT_EQ(before, RegisteredClassesOf(moduleNumber));
}

} // namespace
