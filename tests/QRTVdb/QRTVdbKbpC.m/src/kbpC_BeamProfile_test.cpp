#include "LibraryEnvironment.h"
#include "VirtualSlot.h"
#include "kbpC_ArbitraryProfile.h"
#include "kbpC_BeamProfileContainer.h"
#include "kbpC_CbeamProfile.h"
#include "kbpC_PipeProfile.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

namespace
{

/// A class as text: version, word of the constructor, then each attribute with stored code, word and default.
std::string TextOf(const cls_Description& description)
{
    std::ostringstream text;
    text << description.Name() << ' ' << description.Info().version << " 0x" << std::hex << std::uppercase
         << description.Id() << std::dec << ' ' << description.FindWord("constructor");
    if (description.IsAbstract())
        return text.str() + ", abstract";
    const cls_AnyObject object(description, description.Info().create());
    for (const cls_Attribute& attribute : description.Attributes())
    {
        text << ", " << attribute.field.Index() << ' ' << attribute.field.Name().CString();
        if (attribute.field.Name() != attribute.word)
            text << " (" << attribute.word << ')';
        text << ' ' << attribute.kind->Type() << ' '
             << attribute.kind->Export(attribute.Member(object.Get())).Summary();
    }
    return text.str();
}

TEST(kbpC_BeamProfiles, AreDeclaredAsStored)
{
    const char* const rows[] = {
        "kbpC_BeamProfile 203 0x2640001 Profile, abstract",
        "kbpC_GeneralizedProfile 430 0x2640002 GeneralizedProfile, 0 area 10 0, 1 i11 10 0, "
        "2 i12 10 0, 3 i22 10 0, 4 j 10 0, 5 gammaO 10 0, 6 gammaW 10 0",
        "kbpC_CircularProfile 203 0x2640003 CircularProfile, 0 r 10 0",
        "kbpC_HexagonalProfile 203 0x2640004 HexagonalProfile, 0 r 10 0, 1 t 10 0",
        "kbpC_PipeProfile 1647 0x2640005 PipeProfile, 0 r 10 0, 1 t 10 0, "
        "2 integrationScheme (formulation) 14 \"THIN_WALL\"",
        "kbpC_IbeamProfile 430 0x2640006 IProfile, 0 l 10 0, 1 h 10 0, 2 b1 10 0, 3 b2 10 0, "
        "4 t1 10 0, 5 t2 10 0, 6 t3 10 0",
        "kbpC_BoxProfile 430 0x2640007 BoxProfile, 0 a 10 0, 1 b 10 0, 2 uniformThickness 13 false, "
        "3 t1 10 0, 4 t2 10 0, 5 t3 10 0, 6 t4 10 0",
        "kbpC_ArbitraryProfile 505 0x2640009 ArbitraryProfile, 0 table 15 an array of 0",
        "kbpC_RectangularProfile 203 0x264000A RectangularProfile, 0 a 10 0, 1 b 10 0",
        "kbpC_LbeamProfile 203 0x264000B LProfile, 0 a 10 0, 1 b 10 0, 2 t1 10 0, 3 t2 10 0",
        "kbpC_TbeamProfile 203 0x264000C TProfile, 0 b 10 0, 1 h 10 0, 2 l 10 0, 3 tf 10 0, "
        "4 tw 10 0",
        "kbpC_TrapezoidalProfile 203 0x264000D TrapezoidalProfile, 0 a 10 0, 1 b 10 0, 2 c 10 0, "
        "3 d 10 0",
        "kbpC_CbeamProfile 2401 0x2640015 ChannelProfile, 0 l 10 0, 1 h 10 0, 2 b1 10 0, "
        "3 b2 10 0, 4 t1 10 0, 5 t2 10 0, 6 t3 10 0, 7 o 10 0",
        "kbpC_HatProfile 2202 0x2640016 HatProfile, 0 l 10 0, 1 h 10 0, 2 b 10 0, 3 b1 10 0, "
        "4 b2 10 0, 5 t1 10 0, 6 t2 10 0, 7 t3 10 0",
    };
    std::size_t count = 0;
    for (const cls_Description* description : cls_Descriptions().All())
    {
        if (!description->IsA(kbpC_BeamProfile::TypeId()))
            continue;
        ASSERT_LT(count, std::size(rows)) << description->Name();
        EXPECT_EQ(rows[count++], TextOf(*description));
    }
    EXPECT_EQ(std::size(rows), count);
}

TEST(kbpC_BeamProfile, HasItsVirtualOperationsInOrder)
{
    // Two slots of the destructor come first.
    EXPECT_EQ(2u, VirtualSlotOf(&kbpC_BeamProfile::AssertValid));
    EXPECT_EQ(3u, VirtualSlotOf(&kbpC_BeamProfile::NumTempPoints));
    EXPECT_EQ(4u, VirtualSlotOf(&kbpC_BeamProfile::Copy));
    EXPECT_EQ(5u, VirtualSlotOf(&kbpC_BeamProfile::DBWrite));
    EXPECT_EQ(6u, VirtualSlotOf(&kbpC_BeamProfile::DynTypeId));
}

TEST(kbpC_BeamProfile, HasTheWordOfItsRepository)
{
    EXPECT_STREQ("profiles", kbpC_BeamProfile::profileRepositoryCmd());
}

TEST(kbpC_BeamProfiles, TellTheirTemperaturePoints)
{
    const struct
    {
        const char* name;
        int ifNot;
        int ifSo;
    } rows[] = {
        {"kbpC_CbeamProfile", 3, 5},       {"kbpC_HatProfile", 3, 5},
        {"kbpC_IbeamProfile", 3, 5},       {"kbpC_TbeamProfile", 3, 5},
        {"kbpC_HexagonalProfile", 4, 6},   {"kbpC_CircularProfile", 3, 4},
        {"kbpC_RectangularProfile", 3, 4}, {"kbpC_TrapezoidalProfile", 3, 4},
        {"kbpC_LbeamProfile", 2, 3},       {"kbpC_BoxProfile", 4, 4},
        {"kbpC_PipeProfile", 4, 4},        {"kbpC_GeneralizedProfile", 1, 1},
        {"kbpC_ArbitraryProfile", 0, 0},
    };
    for (const auto& row : rows)
    {
        const cls_Description* const description = cls_Descriptions().Find(std::string(row.name));
        ASSERT_NE(nullptr, description) << row.name;
        const cls_AnyObject object(*description, description->Info().create());
        const auto& profile = *static_cast<const kbpC_BeamProfile*>(object.Get());
        EXPECT_EQ(row.ifNot, profile.NumTempPoints(false)) << row.name;
        EXPECT_EQ(row.ifSo, profile.NumTempPoints(true)) << row.name;
    }
}

TEST(kbpC_ArbitraryProfile, HasATemperaturePointInEachRow)
{
    kbpC_ArbitraryProfile profile;
    profile.table = cow_2DArray<double>(7, 3);
    EXPECT_EQ(7, profile.NumTempPoints(false));
    EXPECT_EQ(7, profile.NumTempPoints(true));
}

TEST(kbpC_BeamProfile, IsCopiedDeepAsWhatItIs)
{
    kbpC_PipeProfile pipe;
    pipe.r = 2.5;
    pipe.integrationScheme = kbpC_PipeProfile::integrationSchemeEnum::THICK_WALL;
    const kbpC_BeamProfile& profile = pipe;
    const std::unique_ptr<kbpC_BeamProfile> copy(profile.DeepCopy());
    ASSERT_EQ(kbpC_PipeProfile::TypeId(), copy->DynTypeId());
    const auto& copied = dynamic_cast<const kbpC_PipeProfile&>(*copy);
    EXPECT_EQ(2.5, copied.r);
    EXPECT_EQ(kbpC_PipeProfile::integrationSchemeEnum::THICK_WALL, copied.integrationScheme);
}

TEST(kbpC_BeamProfileContainer, KeepsProfilesOfAllShapes)
{
    kbpC_BeamProfileContainer profiles;
    profiles.Insert("channel", new kbpC_CbeamProfile);
    profiles.Insert("pipe", kbpC_PipeProfile());
    EXPECT_EQ(kbpC_CbeamProfile::TypeId(), profiles.ConstGet("channel")->DynTypeId());
    EXPECT_EQ(kbpC_PipeProfile::TypeId(), profiles.ConstGet("pipe")->DynTypeId());
}

} // namespace
