#include "Examples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

using testing::HasSubstr;

void CheckModel(const std::string& example, int objects)
{
    const Answer model = RunProgram({"check", Example(example)});
    EXPECT_EQ(0, model.exitCode) << model.err;
    EXPECT_EQ(Example(example) + ": " + std::to_string(objects) + " objects, all rules hold\n", model.out);
}

void CheckLines(const std::string& example)
{
    const std::string objects = ContentOf(Example(example));
    const Answer lines = RunProgram({"check", "--lines"}, objects);
    EXPECT_EQ(0, lines.exitCode);
    std::string allFine;
    for (auto count = std::count(objects.begin(), objects.end(), '\n'); count > 0; --count)
        allFine += "{\"ok\": true}\n";
    EXPECT_EQ(allFine, lines.out);
}

void ImportAndExport(const std::string& example, const std::string& store)
{
    const ScratchFolder folder;
    const std::string again = folder.Path("again.vdb");
    const Answer imported = RunProgram({"import", Example(example), store});
    ASSERT_EQ(0, imported.exitCode) << imported.err;
    const Answer exported = RunProgram({"export", store});
    ASSERT_EQ(0, exported.exitCode) << exported.err;
    ASSERT_EQ(0, RunProgram({"import", folder.Write("again.json", exported.out), again}).exitCode);
    EXPECT_EQ(exported.out, RunProgram({"export", again}).out);
    EXPECT_EQ(0, RunProgram({"check", again}).exitCode);
}

void MakeAndChange(const ObjectLine& line)
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
