#include "QRTVdbKbpC.h"

#include "LibraryEnvironment.h"
#include "ModuleTest.h"
#include "ddr_DdbContainer.h"
#include "kbpC_BeamProfileContainerSC.h"
#include "kbpC_CircularProfile.h"

namespace
{

using UnknownName = nex_CmdException<cow_String, 9>;

TEST(QRTVdbKbpC, RegistersItsClassesInOrder)
{
    EXPECT_EQ((std::vector<RegisteredClass>{{"kbpC_BeamProfile", 7},
                                            {"kbpC_GeneralizedProfile", 7},
                                            {"kbpC_CircularProfile", 7},
                                            {"kbpC_HexagonalProfile", 7},
                                            {"kbpC_PipeProfile", 7},
                                            {"kbpC_IbeamProfile", 7},
                                            {"kbpC_BoxProfile", 7},
                                            {"kbpC_ArbitraryProfile", 7},
                                            {"kbpC_RectangularProfile", 7},
                                            {"kbpC_LbeamProfile", 7},
                                            {"kbpC_TbeamProfile", 7},
                                            {"kbpC_TrapezoidalProfile", 7},
                                            {"kbpC_CbeamProfile", 7},
                                            {"kbpC_HatProfile", 7},
                                            {"kbpC_BeamProfileContainer", 3},
                                            {"kbpC_BPCWrapper", 4},
                                            {"kbpC_BeamProfileShortcut", 7},
                                            {"kbpC_BeamProfileIMPLSC", 7},
                                            {"kbpC_BeamProfileInBeamProfileContainerShortcut", 7},
                                            {"kbpC_BeamProfileContainerShortcut", 7},
                                            {"kbpC_BeamProfileContainerIMPLSC", 7},
                                            {"kbpC_BeamProfileContainerInModelShortcut", 7}}),
              RegisteredClassesOf(612));
}

TEST(QRTVdbKbpC, HasItsTypeTable)
{
    const typ_ArchCompEntry table = kbpC_ArchEntry();
    EXPECT_EQ(23u, table.Count());
    const struct
    {
        unsigned id;
        const char* name;
    } rows[] = {
        {0x2640008, "kbpC_BeamProfileContainer"},
        {0x264000E, "kbpC_BeamProfileContainerShortcut"},
        {0x264000F, "kbpC_BeamProfileContainerIMPLSC"},
        {0x2640010, "kbpC_BeamProfileShortcut"},
        {0x2640011, "kbpC_BeamProfileInBeamProfileContainerShortcut"},
        {0x2640012, "kbpC_BeamProfileIMPLSC"},
        {0x2640013, "kbpC_BeamProfileContainerInModelShortcut"},
        {0x2640014, "kbpC_BPCWrapper"},
    };
    for (const auto& row : rows)
        EXPECT_STREQ(row.name, typ_ArchCompTable::GetName(row.id));
    EXPECT_EQ(0x2640008u, kbpC_BeamProfileContainer::TypeId());
    EXPECT_EQ(0x264000Eu, kbpC_BeamProfileContainerShortcut::TypeId());
    EXPECT_EQ(0x264000Fu, kbpC_BeamProfileContainerIMPLSC::TypeId());
    EXPECT_EQ(0x2640010u, kbpC_BeamProfileShortcut::TypeId());
    EXPECT_EQ(0x2640011u, kbpC_BeamProfileInBeamProfileContainerShortcut::TypeId());
    EXPECT_EQ(0x2640012u, kbpC_BeamProfileIMPLSC::TypeId());
    EXPECT_EQ(0x2640013u, kbpC_BeamProfileContainerInModelShortcut::TypeId());
    EXPECT_EQ(0x2640014u, kbpC_BPCWrapper::TypeId());
}

TEST(QRTVdbKbpC, GivesNewModelsTheirProfiles)
{
    const ddr_Model model;
    const mdl_Repository* const profiles = model.ConstGetBeamProfiles();
    ASSERT_NE(nullptr, profiles);
    EXPECT_EQ(0x2640008u, profiles->DynTypeId());
    EXPECT_EQ(profiles, model.ConstGet("profiles"));
}

TEST(kbpC_BeamProfileShortcut, LeadsToAProfileOfAModel)
{
    ddr_DdbContainer container;
    auto& profiles = dynamic_cast<kbpC_BeamProfileContainer&>(*container.GetModel()->GetBeamProfiles());
    profiles.Insert("rod", new kbpC_CircularProfile);
    const kbpC_BeamProfileContainerShortcut toProfiles(
        new kbpC_BeamProfileContainerInModelShortcut(ddr_Shortcut<ddr_Model>()));
    const kbpC_BeamProfileShortcut toProfile(
        new kbpC_BeamProfileInBeamProfileContainerShortcut("rod", toProfiles));
    EXPECT_EQ(toProfiles.Name(), "profiles");
    EXPECT_EQ(toProfile.Path(), "model.profiles['rod']");
    EXPECT_EQ(profiles.ConstGet("rod"), toProfile.ConstGet(container));
    profiles.Remove("rod");
    EXPECT_THROW(toProfile.ConstGet(container), UnknownName);
}

} // namespace
