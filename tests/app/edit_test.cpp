#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include <nlohmann/json.hpp>

namespace
{

using testing::HasSubstr;

constexpr const char* makeRamp = "model.TabularAmplitude(name='ramp', data=((0.0, 0.0), (1.0, 1.0)))\n";

/// A store that scripts change.
class Edit : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_EQ(0, RunProgram({"new", store}).exitCode);
        ASSERT_EQ(0, Script(makeRamp).exitCode);
    }

    Answer Script(const std::string& lines, std::vector<std::string> options = {})
    {
        options.insert(options.begin(), {"edit", store});
        return RunProgram(options, lines);
    }

    ScratchFolder folder;
    const std::string store = folder.Path("model.vdb");
    const std::string journal = folder.Path("journal.py");
};

TEST_F(Edit, CarriesOutAScript)
{
    const Answer answer = Script("# a comment\n"
                                 "\n"
                                 "model.amplitudes['ramp'].smooth\n"
                                 "model.amplitudes['ramp'].setValues(smooth=0.25, timeSpan=TOTAL)\n"
                                 "model.amplitudes['ramp'].smooth\n"
                                 "model.undo()\n"
                                 "model.amplitudes['ramp'].smooth\n"
                                 "model.redo()\n"
                                 "model.amplitudes['ramp'].rename(name='rise')");
    EXPECT_EQ(0, answer.exitCode) << answer.err;
    EXPECT_EQ("SOLVER_DEFAULT\n0.25\nSOLVER_DEFAULT\n", answer.out);
    EXPECT_EQ("0.25\n", RunProgram({"get", store, "amplitudes['rise']", "smooth"}).out);
}

TEST_F(Edit, ChangesNothingWhenALineIsRefused)
{
    const struct
    {
        const char* line;
        int exitCode;
        const char* message;
    } rows[] = {
        {"model.amplitudes['ramp'].smoth = 0.1", 2,
         "vdbattr: line 2: kamC_Tabular has no word smoth, given 0.1: expected one of timeSpan, smooth, "
         "data, "
         "baselineCorrection; did you mean smooth?\n"},
        {"model.amplitudes['ramp", 2,
         "vdbattr: line 2: column 23: expected the closing ', found the end of the line\n"},
        {"model.amplitudes['ramp'].smooth = 0.6", 1,
         "vdbattr: line 2: Invalid smoothing parameter, expected a value between 0.0 and 0.5.\n"},
    };
    const std::string before = ContentOf(store);
    for (const auto& row : rows)
    {
        const Answer answer = Script(std::string("model.amplitudes['ramp'].smooth = 0.1\n") + row.line + '\n',
                                     {"--journal", journal});
        EXPECT_EQ(row.exitCode, answer.exitCode) << row.line;
        EXPECT_EQ(row.message, answer.err);
        EXPECT_EQ(before, ContentOf(store));
        EXPECT_EQ("", ContentOf(journal));
    }
}

TEST_F(Edit, TakesBrokenRulesOnRequest)
{
    EXPECT_EQ(0, Script("model.amplitudes['ramp'].smooth = 0.6", {"--unchecked"}).exitCode);
    EXPECT_EQ(1, RunProgram({"check", store}).exitCode);
}

TEST_F(Edit, TheJournalOfAllCommandsDoesThemAgain)
{
    const std::vector<std::vector<std::string>> commands = {
        {"new", store, "amplitudes['eq']", "EquallySpacedAmplitude", "fixedInterval=0.5", "data=[0, 1]"},
        {"set", store, "amplitudes['eq']", "baselineCorrection=BaselineCorrection(intervals=(0, 5))"},
        {"set", store, "amplitudes['eq'].baselineCorrection", "intervals=(1, 2)"},
        {"set", store, "amplitudes['ramp']", "smooth=0.1", "timeSpan=TOTAL"},
        {"rename", store, "amplitudes['ramp']", "it's"},
        {"new", store, "amplitudes['d']", "kamC_Decay"},
        {"del", store, "model.amplitudes['d']"},
    };
    for (std::vector<std::string> command : commands)
    {
        command.insert(command.end(), {"--journal", journal});
        const Answer answer = RunProgram(command);
        EXPECT_EQ(0, answer.exitCode) << answer.err;
    }
    EXPECT_EQ(0, Script("model.amplitudes['eq'].begin = 2\nmodel.undo()\n", {"--journal", journal}).exitCode);
    EXPECT_EQ(
        "model.EquallySpacedAmplitude(name='eq', fixedInterval=0.5, data=(0.0, 1.0))\n"
        "model.amplitudes['eq'].setValues(baselineCorrection=BaselineCorrection(intervals=(0.0, 5.0)))\n"
        "model.amplitudes['eq'].baselineCorrection.setValues(intervals=(1.0, 2.0))\n"
        "model.amplitudes['ramp'].setValues(smooth=0.1, timeSpan=TOTAL)\n"
        "model.amplitudes['ramp'].rename(name=\"it's\")\n"
        "model.DecayAmplitude(name='d')\n"
        "del model.amplitudes['d']\n"
        "model.amplitudes['eq'].setValues(begin=2.0)\n"
        "model.undo()\n",
        ContentOf(journal));
    const std::string again = folder.Path("again.vdb");
    ASSERT_EQ(0, RunProgram({"new", again}).exitCode);
    EXPECT_EQ(0, RunProgram({"edit", again}, makeRamp + ContentOf(journal)).exitCode);
    EXPECT_EQ(RunProgram({"export", store}).out, RunProgram({"export", again}).out);
    EXPECT_EQ(0, RunProgram({"diff", store, again}).exitCode);
}

TEST_F(Edit, IsRefusedWithoutAJournalThatCanBeWritten)
{
    const std::string before = ContentOf(store);
    const Answer answer = Script("model.amplitudes['ramp'].smooth = 0.1",
                                 {"--journal", folder.Path("no such folder/journal.py")});
    EXPECT_EQ(2, answer.exitCode);
    EXPECT_THAT(answer.err, HasSubstr("journal.py: cannot be written"));
    EXPECT_EQ(before, ContentOf(store));
}

TEST_F(Edit, ADifferenceIsShownToPeopleAndAsJson)
{
    const std::string old = folder.Path("old.vdb");
    std::filesystem::copy_file(store, old);
    const Answer same = RunProgram({"diff", old, store});
    EXPECT_EQ(0, same.exitCode);
    EXPECT_EQ("", same.out);
    ASSERT_EQ(0, Script("model.amplitudes['ramp'].smooth = 0.25\nmodel.DecayAmplitude(name='d')").exitCode);
    const Answer text = RunProgram({"diff", old, store});
    EXPECT_EQ(1, text.exitCode);
    EXPECT_EQ("~ model.amplitudes['ramp'] (kamC_Tabular)\n"
              "    smooth: SOLVER_DEFAULT -> 0.25\n"
              "+ model.amplitudes['d'] (kamC_Decay)\n",
              text.out);
    const Answer json = RunProgram({"diff", store, old, "--json"});
    EXPECT_EQ(1, json.exitCode);
    const auto report = nlohmann::json::parse(json.out);
    ASSERT_EQ(2U, report.size());
    EXPECT_EQ("removed", report[0].at("change"));
    EXPECT_EQ("model.amplitudes['d']", report[0].at("path"));
    EXPECT_EQ("changed", report[1].at("change"));
    EXPECT_EQ(0.25, report[1].at("attributes")[0].at("before"));
    EXPECT_EQ("[]\n", RunProgram({"diff", store, store, "--json"}).out);
    const Answer trouble = RunProgram({"diff", store, folder.Path("none.vdb")});
    EXPECT_EQ(2, trouble.exitCode);
    EXPECT_THAT(trouble.err, HasSubstr("none.vdb"));
}

} // namespace
