#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace
{

// Filters, adaptive meshing, remeshing rules and load cases at the program.

using testing::HasSubstr;

TEST(Controls, ExamplesKeepTheirRules)
{
    const Answer model = RunProgram({"check", Example("controls.json")});
    EXPECT_EQ(0, model.exitCode);
    EXPECT_EQ(Example("controls.json") + ": 6 objects, all rules hold\n", model.out);
    const std::string objects = ContentOf(Example("controls.jsonl"));
    const Answer lines = RunProgram({"check", "--lines"}, objects);
    EXPECT_EQ(0, lines.exitCode);
    std::string allFine;
    for (auto count = std::count(objects.begin(), objects.end(), '\n'); count > 0; --count)
        allFine += "{\"ok\": true}\n";
    EXPECT_EQ(allFine, lines.out);
}

TEST(Controls, ExamplesComeBackFromAStore)
{
    const ScratchFolder folder;
    const std::string first = folder.Path("first.vdb");
    const std::string second = folder.Path("second.vdb");
    ASSERT_EQ(0, RunProgram({"import", Example("controls.json"), first}).exitCode);
    const Answer exported = RunProgram({"export", first});
    ASSERT_EQ(0, exported.exitCode);
    EXPECT_THAT(exported.out, HasSubstr("\"kflC_OperatorFilter\""));
    ASSERT_EQ(0, RunProgram({"import", folder.Write("again.json", exported.out), second}).exitCode);
    EXPECT_EQ(exported.out, RunProgram({"export", second}).out);
    EXPECT_EQ(0, RunProgram({"check", second}).exitCode);
    const Answer shown = RunProgram({"show", second, "filters['peak']"});
    EXPECT_EQ(0, shown.exitCode);
    EXPECT_THAT(shown.out, HasSubstr("250"));
}

/// One object by its constructor word, one change of it, and one that a rule refuses.
struct Line
{
    const char* call;
    const char* path;
    const char* change;
    const char* value;
    const char* badChange;
    const char* rule;
};

TEST(Controls, AreMadeAndChangedByWords)
{
    const Line lines[] = {
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
    for (const Line& line : lines)
    {
        const ScratchFolder folder;
        const std::string store = folder.Path("model.vdb");
        ASSERT_EQ(0, RunProgram({"new", store}).exitCode);
        const Answer made = RunProgram({"new", store, line.call});
        EXPECT_EQ(0, made.exitCode) << line.call << '\n' << made.err;
        const Answer changed = RunProgram({"set", store, line.path, line.change});
        EXPECT_EQ(0, changed.exitCode) << line.change << '\n' << changed.err;
        const Answer got = RunProgram({"get", store, line.value});
        EXPECT_THAT(line.change, testing::EndsWith('=' + got.out.substr(0, got.out.find('\n')))) << got.err;
        const Answer refused = RunProgram({"set", store, line.path, line.badChange});
        EXPECT_EQ(1, refused.exitCode) << line.badChange;
        EXPECT_THAT(refused.err, HasSubstr(line.rule)) << line.badChange;
    }
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
