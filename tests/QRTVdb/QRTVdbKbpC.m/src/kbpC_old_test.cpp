#include "kbpC_old.h"

#include "LibraryEnvironment.h"
#include "OldVersionTest.h"

namespace
{

using Fields = MemoryRow::Fields;

constexpr auto none = MemoryRow::none;
constexpr std::int64_t five = 5;

// What is done with lists, the old stores show; a row by itself has none.

TEST(Upgrade, ArbitraryProfileLeavesATableAlone)
{
    TryConversion(Upgrade_kbpC_ArbitraryProfile_203_505,
                  {{"the new form", {{"table#OID", five}}, {}},
                   {"both", {{"x#OID", five}, {"y#OID", five}, {"t#OID", five}, {"table#OID", five}}, {}},
                   {"no value in x", {{"x#OID", none}, {"y#OID", five}, {"t#OID", five}}, {}},
                   {"no x", {{"y#OID", five}, {"t#OID", five}}, {}},
                   {"no fields", {}, {}}});
}

TEST(Upgrade, BoxRenamesItsDimensionsTo406WhereTheyHaveNoValue)
{
    const Fields old = {{"width", 4.0}, {"height", 2.0}, {"uniform", true}};
    const auto with = [&](const char* name, const MemoryRow::Value& value)
    {
        Fields fields = old;
        fields[name] = value;
        return fields;
    };
    TryConversion(
        Upgrade_kbpC_BoxProfile_203_406,
        {{"the old form", old, {{"a", 4.0}, {"b", 2.0}, {"uniformThickness", true}}},
         {"a has a value", with("a", 7.0), {{"b", 2.0}, {"uniformThickness", true}}},
         {"a has none", with("a", none), {{"a", 4.0}, {"b", 2.0}, {"uniformThickness", true}}},
         {"b has a value", with("b", 7.0), {{"a", 4.0}, {"uniformThickness", true}}},
         {"uniformThickness has a value", with("uniformThickness", false), {{"a", 4.0}, {"b", 2.0}}},
         {"no value in width", with("width", none), {{"b", 2.0}, {"uniformThickness", true}}},
         {"height alone", {{"height", 2.0}}, {{"b", 2.0}}},
         {"not uniform", {{"uniform", false}}, {{"uniformThickness", false}}},
         {"the new form", {{"a", 4.0}, {"b", 2.0}, {"uniformThickness", true}}, {}}});
}

TEST(Upgrade, BoxLeavesThicknessesAloneThatItHas)
{
    TryConversion(Upgrade_kbpC_BoxProfile_406_430,
                  {{"the new form", {{"t1", 1.0}, {"t2", 2.0}, {"t3", 3.0}, {"t4", 4.0}}, {}},
                   {"t1 alone", {{"tempThick#OID", five}, {"t1", 0.0}, {"t2", none}}, {}},
                   {"no value in the list", {{"tempThick#OID", none}, {"t1", none}}, {}},
                   {"no list", {{"a", 4.0}}, {}}});
}

TEST(Upgrade, GeneralizedProfileRenamesItsTorsionTo406)
{
    TryConversion(Upgrade_kbpC_GeneralizedProfile_203_406,
                  {{"the old form", {{"jTorsion", 5.0}}, {{"j", 5.0}}},
                   {"both", {{"jTorsion", 5.0}, {"j", 7.0}}, {}},
                   {"j has no value", {{"jTorsion", 5.0}, {"j", none}}, {{"j", 5.0}}},
                   {"no value", {{"jTorsion", none}}, {}},
                   {"no field", {{"area", 1.0}}, {}}});
}

TEST(Upgrade, PipeRenamesItsDimensionsTo406)
{
    TryConversion(Upgrade_kbpC_PipeProfile_203_406,
                  {{"the old form", {{"radius", 5.0}, {"thickness", 1.0}}, {{"r", 5.0}, {"t", 1.0}}},
                   {"r has a value", {{"radius", 5.0}, {"thickness", 1.0}, {"r", 7.0}}, {{"t", 1.0}}},
                   {"t has a value", {{"radius", 5.0}, {"thickness", 1.0}, {"t", 7.0}}, {{"r", 5.0}}},
                   {"no values", {{"radius", none}, {"thickness", none}}, {}},
                   {"the new form", {{"r", 5.0}, {"t", 1.0}}, {}}});
}

TEST(Upgrade, PipeTakesAnIntegrationSchemeTo1647)
{
    const Fields scheme = {{"integrationScheme", "THIN_WALL"}};
    TryConversion(
        Upgrade_kbpC_PipeProfile_406_1647,
        {{"the old form", {{"r", 5.0}, {"t", 1.0}}, scheme},
         {"a scheme that is there is not asked for", {{"integrationScheme", "THICK_WALL"}}, scheme}});
}

TEST(OldVersions, AreThoseOfTheBeamProfilesInOrder)
{
    EXPECT_EQ(
        (std::vector<std::string>{
            "kbpC_BoxProfile 203 (0x2640007, base 0x2640001, mask 4) to 406 by "
            "Upgrade_kbpC_BoxProfile_203_406: 0 width 10 1 height 10 2 uniform 13 "
            "3 tempThick 15/0x230001/52",
            "kbpC_BoxProfile 406 (0x2640007, base 0x2640001, mask 4) to 430 by "
            "Upgrade_kbpC_BoxProfile_406_430: 0 a 10 1 b 10 2 uniformThickness 13 3 tempThick 15/0x230001/52",
            "kbpC_GeneralizedProfile 203 (0x2640002, base 0x2640001, mask 4) to 406 by "
            "Upgrade_kbpC_GeneralizedProfile_203_406: 0 area 10 1 i11 10 2 i12 10 3 i22 10 4 jTorsion 10 "
            "5 gammaO 10 6 gammaW 10 7 linearBehavior 13",
            "kbpC_GeneralizedProfile 406 (0x2640002, base 0x2640001, mask 4) to 430: 0 area 10 1 i11 10 "
            "2 i12 10 3 i22 10 4 j 10 5 gammaO 10 6 gammaW 10 7 linearBehavior 13",
            "kbpC_IbeamProfile 203 (0x2640006, base 0x2640001, mask 4) to 430: 0 l 10 1 h 10 2 b1 10 3 b2 10 "
            "4 t1 10 5 t2 10 6 t3 10 7 integration 14",
            "kbpC_PipeProfile 203 (0x2640005, base 0x2640001, mask 4) to 406 by "
            "Upgrade_kbpC_PipeProfile_203_406: 0 radius 10 1 thickness 10",
            "kbpC_ArbitraryProfile 203 (0x2640009, base 0x2640001, mask 5) to 505 by "
            "Upgrade_kbpC_ArbitraryProfile_203_505: 0 x 15/0x230001/52 1 y 15/0x230001/52 2 t 15/0x230001/52",
            "kbpC_CbeamProfile 2202 (0x2640015, base 0x2640001, mask 5) to 2401: 0 l 10 1 h 10 2 b1 10 "
            "3 b2 10 4 t1 10 5 t2 10 6 t3 10",
            "kbpC_PipeProfile 406 (0x2640005, base 0x2640001, mask 5) to 1647 by "
            "Upgrade_kbpC_PipeProfile_406_1647: 0 r 10 1 t 10"}),
        OldVersionsOf(612));
}

} // namespace
