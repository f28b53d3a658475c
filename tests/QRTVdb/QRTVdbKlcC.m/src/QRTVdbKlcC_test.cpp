#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "QRTVdbKlcC.h"
#include "klcC_Shortcuts.h"

namespace
{

TEST(QRTVdbKlcC, RegistersTheLoadCaseAndThenItsRepository)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"klcC_LoadCase", 7}, {"klcC_LoadCaseCont", 3}}),
              RegisteredClassesOf(732));
}

TEST(klcC_Shortcuts, BearTheNamesOfTheTypeTable)
{
    const std::pair<unsigned, const char*> rows[] = {
        {klcC_LoadCaseShortcut::TypeId(), "klcC_LoadCaseShortcut"},
        {klcC_LoadCaseIMPLSC::TypeId(), "klcC_LoadCaseIMPLSC"},
        {klcC_LoadCaseInLoadCaseContShortcut::TypeId(), "klcC_LoadCaseInLoadCaseContShortcut"},
        {klcC_LoadCaseContShortcut::TypeId(), "klcC_LoadCaseContShortcut"},
        {klcC_LoadCaseContIMPLSC::TypeId(), "klcC_LoadCaseContIMPLSC"},
    };
    for (const auto& [id, name] : rows)
        EXPECT_STREQ(name, typ_ArchCompTable::GetName(id));
}

TEST(klcC_LoadCaseShortcut, NamesALoadCaseOfTheOnesThatItsOwnerLeadsTo)
{
    const klcC_LoadCaseShortcut wind(
        new klcC_LoadCaseInLoadCaseContShortcut("wind", klcC_LoadCaseContShortcut()));
    EXPECT_EQ(wind.Name(), "wind");
    EXPECT_EQ(wind.Path(), "['wind']");
}

} // namespace
