#include "LibraryEnvironment.h"
#include "Parentheses.h"
#include "QRTVdbKbpC.h"
#include "kbpC_BeamProfileDescriptionMap.h"
#include "kbpC_BeamProfileLabelMap.h"

#include <iterator>

namespace
{

struct Row
{
    unsigned classId;
    const char* label;
    const char* labelName;
    const char* description;
    const char* descriptionName;
};

// In the order of insertion.
constexpr Row rows[] = {
    {0x2640002, "Generalized", "Generalized", "Generalized", "Generalized"},
    {0x2640007, "Box", "PROFILE_BOX", "Box", "Box"},
    {0x2640005, "Pipe", "Pipe", "Pipe", "Pipe"},
    {0x2640006, "I", "I", "I", "I"},
    {0x264000B, "L", "L", "L", "L"},
    {0x264000C, "T", "T", "T", "T"},
    {0x2640009, "Arbitrary", "Arbitrary", "Arbitrary", "Arbitrary"},
    {0x2640003, "Circular", "Circular", "Circular", "Circular"},
    {0x2640004, "Hexagonal", "Hexagonal", "Hexagonal", "Hexagonal"},
    {0x264000A, "Rectangular\\@PROFILE_RECTANGULAR", "Rectangular", "Rectangular\\@RECTAGULAR_BEAM_PROFILE",
     "Rectangular\\@RECTAGULAR_BEAM_PROFILE"},
    {0x264000D, "Trapezoidal", "Trapezoidal", "Trapezoidal", "Trapezoidal"},
    {0x2640015, "Channel", "Channel", "Channel", "Channel"},
    {0x2640016, "Hat", "Hat", "Hat", "Hat"},
};

void Forget()
{
    omi_Singleton<kbpC_BeamProfileLabelMap>::Finalize();
    omi_Singleton<kbpC_BeamProfileDescriptionMap>::Finalize();
}

/// Checks one of the maps, made in the language in force, against its two columns.
void CheckMap(const uti_TranslationMap& map, const char* Row::*label, const char* Row::*name,
              const std::string& before, const std::string& behind)
{
    ASSERT_EQ(static_cast<int>(std::size(rows)), map.Count());
    for (int position = 0; position < map.Count(); ++position)
    {
        const Row& row = rows[position];
        EXPECT_EQ(row.classId, map.ClassIdAt(position)) << position;
        EXPECT_EQ(before + row.*label + behind, map.GetTranslated(row.classId).CString()) << position;
        EXPECT_STREQ(row.*name, map.GetText(row.classId).CString()) << position;
    }
    EXPECT_FALSE(map.IsMember(0x2640001)) << "the base has no label";
}

TEST(kbpC_BeamProfileLabelMap, HasALabelAndANameForEachShape)
{
    CheckMap(*omi_Singleton<kbpC_BeamProfileLabelMap>::Instance(), &Row::label, &Row::labelName, "", "");
}

TEST(kbpC_BeamProfileDescriptionMap, HasATextAndANameForEachShape)
{
    CheckMap(*omi_Singleton<kbpC_BeamProfileDescriptionMap>::Instance(), &Row::description,
             &Row::descriptionName, "", "");
}

TEST(kbpC_BeamProfileMaps, HandWholeLiteralsToTheTranslation)
{
    Forget();
    {
        const Parentheses language;
        CheckMap(*omi_Singleton<kbpC_BeamProfileLabelMap>::Instance(), &Row::label, &Row::labelName, "(",
                 ")");
        CheckMap(*omi_Singleton<kbpC_BeamProfileDescriptionMap>::Instance(), &Row::description,
                 &Row::descriptionName, "(", ")");
    }
    Forget();
}

TEST(kbpC_BeamProfileMaps, GoWithTheModule)
{
    Forget();
    {
        const Parentheses language;
        omi_Singleton<kbpC_BeamProfileLabelMap>::Instance();
        omi_Singleton<kbpC_BeamProfileDescriptionMap>::Instance();
    }
    int tally = 0;
    QRTVdbKbpC_finalize(tally);
    EXPECT_EQ(-1, tally);
    EXPECT_EQ(omi_Singleton<kbpC_BeamProfileLabelMap>::Instance()->GetTranslated(0x2640016), "Hat");
    EXPECT_EQ(omi_Singleton<kbpC_BeamProfileDescriptionMap>::Instance()->GetTranslated(0x2640016), "Hat");
    QRTVdbKbpC_initialize(tally);
    EXPECT_EQ(0, tally);
}

} // namespace
