#include "Examples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

// Filters, adaptive meshing, remeshing rules and load cases at the program.

using testing::HasSubstr;

TEST(Controls, ExamplesKeepTheirRules)
{
    CheckModel("controls.json", 6);
    CheckLines("controls.jsonl");
}

TEST(Controls, ExamplesComeBackFromAStore)
{
    const ScratchFolder folder;
    const std::string store = folder.Path("controls.vdb");
    ImportAndExport("controls.json", store);
    const Answer shown = RunProgram({"show", store, "filters['peak']"});
    EXPECT_EQ(0, shown.exitCode);
    EXPECT_THAT(shown.out, HasSubstr("kflC_OperatorFilter"));
    EXPECT_THAT(shown.out, HasSubstr("250"));
}

TEST(Controls, AreMadeAndChangedByWords)
{
    const ObjectLine lines[] = {
        {"ButterworthFilter(name='f', cutoffFrequency=10)", "filters['f']", "order=20", "filters['f'].order",
         "order=21", "kflC:4"},
        {"Chebyshev1Filter(name='f', cutoffFrequency=10)", "filters['f']", "rippleFactor=2.0",
         "filters['f'].rippleFactor", "rippleFactor=0.0", "kflC:5"},
        {"Chebyshev2Filter(name='f', cutoffFrequency=10)", "filters['f']", "rippleFactor=1.0",
         "filters['f'].rippleFactor", "rippleFactor=1.5", "kflC:6"},
        {"OperatorFilter(name='f', operation=ABS)", "filters['f']", "limit=3.5", "filters['f'].limit",
         "order=3", "kflC:11"},
        {"Filter(name='f')", "filters['f']", "order=7", "filters['f'].order", "halt=True", "kflC:2"},
        {"AdaptiveMeshControl(name='c')", "adaptiveMeshControls['c']", "remapping=FIRST_ORDER_ADVECTION",
         "adaptiveMeshControls['c'].remapping", "meshConstraintAngle=180.5", "kadC:9"},
    };
    for (const ObjectLine& line : lines)
        MakeAndChange(line);
}

TEST(Controls, FiltersOfRelease821AreRefusedForTheirLimit)
{
    const ScratchFolder folder;
    const std::string old = folder.Path("old.vdb");
    const std::string current = folder.Path("current.vdb");
    ASSERT_EQ(0, RunProgram({"load", OVR_SOURCE_DIR "/tests/stores/kflC_Filter_821.rows", old}).exitCode);
    const Answer upgraded = RunProgram({"upgrade", old, current});
    ASSERT_EQ(0, upgraded.exitCode) << upgraded.err;
    EXPECT_EQ("0.0\n", RunProgram({"get", current, "filters['low pass'].limit"}).out);
    const Answer checked = RunProgram({"check", current});
    EXPECT_EQ(1, checked.exitCode);
    EXPECT_THAT(checked.out,
                HasSubstr("filters['low pass']  kflC:1  Limit requires that operation is specified."));
    EXPECT_THAT(checked.out, HasSubstr("2 objects, 2 findings\n"));
}

} // namespace
