#include "LibraryEnvironment.h"
#include "OldVersionTest.h"
#include "klcC_old.h"

namespace
{

TEST(Upgrade, LoadCaseIsNotSuppressedIn1323)
{
    TryConversion(Upgrade_klcC_LoadCase_302_1323,
                  {{"the old form", {{"includeActiveBaseStateBC", true}}, {{"suppress", false}}},
                   {"a value that is there is not asked for", {{"suppress", true}}, {{"suppress", false}}}});
}

TEST(OldVersions, AreThatOfTheLoadCase)
{
    EXPECT_EQ((std::vector<std::string>{
                  "klcC_LoadCase 302 (0x2DC0001, base 0x1, mask 5) to 1323 by "
                  "Upgrade_klcC_LoadCase_302_1323: 0 boundaryConditions 15/0x230002/63 1 fields "
                  "15/0x230002/63 2 loads 15/0x230002/63 3 includeActiveBaseStateBC 13"}),
              OldVersionsOf(732));
}

} // namespace
