#include "Examples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

// Beam profiles at the program, and the steel frame that is made of them.

using testing::HasSubstr;

TEST(Frame, KeepsItsRules)
{
    CheckModel("frame.json", 26);
    CheckLines("frame.jsonl");
}

TEST(Frame, ComesBackFromAStore)
{
    const ScratchFolder folder;
    const std::string store = folder.Path("frame.vdb");
    ImportAndExport("frame.json", store);
    const Answer shown = RunProgram({"show", store, "profiles['strut CHS 88.9x5']"});
    EXPECT_EQ(0, shown.exitCode);
    EXPECT_THAT(shown.out, HasSubstr("profiles['strut CHS 88.9x5']  PipeProfile (kbpC_PipeProfile)"));
    EXPECT_THAT(shown.out, HasSubstr("44.45"));
    EXPECT_EQ("THICK_WALL\n", RunProgram({"get", store, "profiles['strut CHS 88.9x5'].formulation"}).out);
}

TEST(Frame, HasAProfileOfEachShape)
{
    const std::string frame = ContentOf(Example("frame.json"));
    for (const char* shape : {"Arbitrary", "Box", "Cbeam", "Circular", "Generalized", "Hat", "Hexagonal",
                              "Ibeam", "Lbeam", "Pipe", "Rectangular", "Tbeam", "Trapezoidal"})
        EXPECT_THAT(frame, HasSubstr('"' + ("kbpC_" + std::string(shape)) + "Profile\""));
}

TEST(Profiles, AreMadeAndChangedByWords)
{
    const ObjectLine lines[] = {
        {"ArbitraryProfile(name='p', table=((0, 0, 0), (1, 0, 2)))", "profiles['p']",
         "table=((0.0, 0.0, 0.0), (1.0, 0.0, 3.0))", "profiles['p'].table", "table=((0, 0, 0), (1, 0, -1))",
         "kbpC:11"},
        {"BoxProfile(name='p', a=4, b=2, uniformThickness=True, t1=0.5)", "profiles['p']", "t1=0.25",
         "profiles['p'].t1", "t1=1", "kbpC:16"},
        {"ChannelProfile(name='p', h=8, b1=4, b2=4, t1=1, t2=1, t3=1)", "profiles['p']", "o=2.5",
         "profiles['p'].o", "t3=4", "kbpC:39"},
        {"CircularProfile(name='p', r=1)", "profiles['p']", "r=2.0", "profiles['p'].r", "r=0", "kbpC:9"},
        {"GeneralizedProfile(name='p', area=1, i11=3, i22=1)", "profiles['p']", "i12=2.0",
         "profiles['p'].i12", "i12=-2", "kbpC:6"},
        {"HatProfile(name='p', h=8, b1=4, b2=4, t1=1, t2=1, t3=1)", "profiles['p']", "b=9.0",
         "profiles['p'].b", "t3=2", "kbpC:41"},
        {"HexagonalProfile(name='p', r=1, t=0.5)", "profiles['p']", "t=0.8659", "profiles['p'].t", "t=0.8661",
         "kbpC:22"},
        {"IProfile(name='p', h=8, b2=4, t2=1, t3=1)", "profiles['p']", "l=4.0", "profiles['p'].l", "b2=0",
         "kbpC:19"},
        {"LProfile(name='p', a=8, b=8, t1=1, t2=1)", "profiles['p']", "t1=2.0", "profiles['p'].t1", "t2=8",
         "kbpC:34"},
        {"PipeProfile(name='p', r=2, t=1)", "profiles['p']", "formulation=THICK_WALL",
         "profiles['p'].formulation", "t=2", "kbpC:17"},
        {"RectangularProfile(name='p', a=2, b=1)", "profiles['p']", "b=3.0", "profiles['p'].b", "a=-1",
         "kbpC:23"},
        {"TProfile(name='p', b=8, h=8, tf=1, tw=1)", "profiles['p']", "l=4.0", "profiles['p'].l", "tw=8",
         "kbpC:37"},
        {"TrapezoidalProfile(name='p', a=2, b=1, c=1)", "profiles['p']", "d=-0.5", "profiles['p'].d", "c=0",
         "kbpC:25"},
    };
    for (const ObjectLine& line : lines)
        MakeAndChange(line);
}

TEST(Profiles, HaveNoConstructorOfTheirBase)
{
    const ScratchFolder folder;
    const std::string store = folder.Path("model.vdb");
    ASSERT_EQ(0, RunProgram({"new", store}).exitCode);
    EXPECT_EQ(2, RunProgram({"new", store, "Profile(name='p')"}).exitCode);
}

TEST(Profiles, OfRelease203HaveTheirTables)
{
    const ScratchFolder folder;
    const std::string old = folder.Path("old.vdb");
    const std::string current = folder.Path("current.vdb");
    ASSERT_EQ(
        0, RunProgram({"load", OVR_SOURCE_DIR "/tests/stores/kbpC_ArbitraryProfile_203.rows", old}).exitCode);
    const Answer upgraded = RunProgram({"upgrade", old, current});
    ASSERT_EQ(0, upgraded.exitCode) << upgraded.err;
    EXPECT_EQ("((0.0, 10.0, 0.0), (0.0, 0.0, 1.0), (10.0, 0.0, 2.0))\n",
              RunProgram({"get", current, "profiles['angle'].table"}).out);
    const Answer checked = RunProgram({"check", current});
    EXPECT_EQ(1, checked.exitCode);
    EXPECT_THAT(checked.out, HasSubstr("profiles['filled up']  kbpC:12  Two connected segments cannot have "
                                       "zero thickness."));
    EXPECT_THAT(checked.out, HasSubstr("8 objects, 1 finding\n"));
}

} // namespace
