#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "QRTVdbKarC.h"
#include "karC_Shortcuts.h"

namespace
{

TEST(QRTVdbKarC, RegistersItsClassesInOrder)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"karC_RemeshingRule", 7},
                                            {"karC_RemeshingRuleContainer", 7},
                                            {"karC_RemeshingRuleShortcut", 7},
                                            {"karC_RemeshingRuleIMPLSC", 7}}),
              RegisteredClassesOf(855));
}

TEST(karC_RemeshingRuleShortcut, LeadsNowhereAsLongAsNoStepDoes)
{
    const karC_RemeshingRuleShortcut shortcut;
    EXPECT_FALSE(shortcut.IsPresent());
    EXPECT_TRUE(shortcut.Path().IsEmpty());
}

} // namespace
