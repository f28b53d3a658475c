#include "LibraryEnvironment.h"
#include "OldVersionTest.h"
#include "kadC_old.h"

namespace
{

TEST(Upgrade, ControlLeavesTheAlgorithmToTheProductTo829)
{
    const char* const name = "smoothingAlgorithm";
    const MemoryRow::Fields changed = {{name, "ANALYSIS_PRODUCT_DEFAULT"}};
    TryConversion(Upgrade_kadC_AdptMeshCtrl_302_829,
                  {{"the enhanced", {{name, "GEOMETRY_ENHANCED"}}, changed},
                   {"in lower case", {{name, "geometry_enhanced"}}, changed},
                   {"in both", {{name, "Geometry_Enhanced"}}, changed},
                   {"the standard", {{name, "STANDARD"}}, {}},
                   {"another in lower case", {{name, "standard"}}, {}},
                   {"more than the text", {{name, "GEOMETRY_ENHANCED "}}, {}},
                   {"an empty text", {{name, ""}}, {}},
                   {"no value", {{name, MemoryRow::none}}, {}},
                   {"no field", {{"advection", "A"}}, {}}});
}

TEST(Upgrade, ControlTakesTwoWeightsTo860)
{
    const MemoryRow::Fields added = {{"originalConfigurationProjectionWeight", 1.0},
                                     {"standardVolumetricSmoothingWeight", 0.0}};
    TryConversion(
        Upgrade_kadC_AdptMeshCtrl_829_860,
        {{"the old form", {{"meshConstraintAngle", 60.0}}, added},
         {"weights that are there are not asked for",
          {{"originalConfigurationProjectionWeight", 3.0}, {"standardVolumetricSmoothingWeight", 4.0}},
          added}});
}

TEST(OldVersions, AreThoseOfTheControlInOrder)
{
    const std::string attributes =
        ": 0 advection 14 1 smoothingAlgorithm 14 2 smoothingPriority 14 3 initialFeatureAngle 10 "
        "4 transitionFeatureAngle 10 5 momentumAdvection 14 6 remeshPredictor 14 7 curvatureRefinement 10 "
        "8 volumetricSmoothingWeight 10 9 laplacianSmoothingWeight 10 10 equipotentialSmoothingWeight 10 "
        "11 meshConstraintAngle 10";
    EXPECT_EQ((std::vector<std::string>{"kadC_AdptMeshCtrl 302 (0x2680001, base 0x1, mask 5) to 829 by "
                                        "Upgrade_kadC_AdptMeshCtrl_302_829" +
                                            attributes,
                                        "kadC_AdptMeshCtrl 829 (0x2680001, base 0x1, mask 5) to 860 by "
                                        "Upgrade_kadC_AdptMeshCtrl_829_860" +
                                            attributes}),
              OldVersionsOf(616));
}

} // namespace
