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
         "kamC_Tabular has no word smoth, given 0.1: expected one of timeSpan, smooth, data, "
         "baselineCorrection; did you mean smooth?\n"},
        {"model.amplitudes['ramp", 2,
         "column 23: expected the closing ', found the end of the line\n"
         "  model.amplitudes['ramp\n"
         "                        ^\n"},
        {"model.amplitudes['rmp'].smooth = 0.1", 2,
         "model.amplitudes['rmp']: there is no such object; did you mean 'ramp'?\n"
         "  model.amplitudes['rmp']\n"
         "                  ^~~~~~~\n"},
        {"model.amplitudes['ramp'].smooth = 0.6", 1,
         "model.amplitudes['ramp']: kamC:2 Invalid smoothing parameter, expected a value between 0.0 and "
         "0.5.\n"},
    };
    const std::string before = ContentOf(store);
    for (const auto& row : rows)
    {
        const std::string lines = std::string("model.amplitudes['ramp'].smooth = 0.1\n") + row.line + '\n';
        const std::string script = folder.Write("script.py", lines);
        const std::pair<Answer, std::string> answers[] = {
            {Script(lines, {"--journal", journal}), "standard input"},
            {RunProgram({"run", store, "-", "--journal", journal}, lines), "standard input"},
            {RunProgram({"run", store, script, "--journal", journal}), script},
        };
        for (const auto& [answer, source] : answers)
        {
            EXPECT_EQ(row.exitCode, answer.exitCode) << row.line;
            EXPECT_EQ("vdbattr: " + source + ":2: " + row.message, answer.err);
            EXPECT_EQ(before, ContentOf(store));
            EXPECT_EQ("", ContentOf(journal));
        }
    }
}

TEST_F(Edit, RunsAScriptFromAFile)
{
    const std::string script = folder.Write("script.py", "model.amplitudes['ramp'].smooth = 0.25\r\n"
                                                         "model.amplitudes['ramp'].smooth\r\n"
                                                         "model.undo()\r\n"
                                                         "model.DecayAmplitude(name='d')");
    const Answer answer = RunProgram({"run", store, script, "--journal", journal});
    EXPECT_EQ(0, answer.exitCode) << answer.err;
    EXPECT_EQ("0.25\n", answer.out);
    EXPECT_EQ("model.amplitudes['ramp'].setValues(smooth=0.25)\n"
              "model.undo()\n"
              "model.DecayAmplitude(name='d')\n",
              ContentOf(journal));
    EXPECT_EQ("('d', 'ramp')\n", RunProgram({"get", store, "amplitudes"}).out);
}

TEST_F(Edit, TakesBrokenRulesOnRequestAndWarns)
{
    const char* const warning =
        "vdbattr: warning: model.amplitudes['ramp']: kamC:2 Invalid smoothing parameter, expected a value "
        "between 0.0 and 0.5.\n";
    const Answer edited = Script("model.amplitudes['ramp'].smooth = 0.6", {"--unchecked"});
    EXPECT_EQ(0, edited.exitCode);
    EXPECT_EQ(warning, edited.err);
    const Answer run =
        RunProgram({"run", store, "-", "--unchecked"}, "model.amplitudes['ramp'].smooth = 0.7");
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(warning, run.err);
    const Answer made = RunProgram({"new", store, "TabularAmplitude(name='t')", "--unchecked"});
    EXPECT_EQ(0, made.exitCode);
    EXPECT_THAT(made.err, HasSubstr("warning: model.amplitudes['t']: kamC:12 "));
    EXPECT_EQ(1, RunProgram({"check", store}).exitCode);
}

TEST_F(Edit, MakesObjectsByTheCallOfTheirConstructor)
{
    const char* const calls[] = {
        "EquallySpacedAmplitude(name='eq', fixedInterval=0.5, data=(0, 1))",
        "model.DecayAmplitude(name='d', initial=1)",
        "amplitudes['eq'].BaselineCorrection(intervals=(0, 5))",
        "model.amplitudes['ramp'].BaselineCorrection()",
    };
    for (const char* call : calls)
    {
        const Answer answer = RunProgram({"new", store, call, "--journal", journal});
        EXPECT_EQ(0, answer.exitCode) << answer.err;
        EXPECT_EQ("", answer.out);
    }
    EXPECT_EQ(
        "model.EquallySpacedAmplitude(name='eq', fixedInterval=0.5, data=(0.0, 1.0))\n"
        "model.DecayAmplitude(name='d', initial=1.0)\n"
        "model.amplitudes['eq'].setValues(baselineCorrection=BaselineCorrection(intervals=(0.0, 5.0)))\n"
        "model.amplitudes['ramp'].setValues(baselineCorrection=BaselineCorrection(intervals=()))\n",
        ContentOf(journal));
    const std::string call = "DecayAmplitude(name='ramp')";
    const std::string before = ContentOf(store);
    const Answer taken = RunProgram({"new", store, call});
    EXPECT_EQ(2, taken.exitCode);
    EXPECT_THAT(taken.err, HasSubstr("there is an object of this name already; --force replaces it"));
    EXPECT_EQ(before, ContentOf(store));
    EXPECT_EQ(0, RunProgram({"new", store, call, "--force"}).exitCode);
    EXPECT_THAT(RunProgram({"get", store, "amplitudes['ramp']"}).out,
                HasSubstr("DecayAmplitude(name='ramp'"));
}

TEST_F(Edit, PrintsValuesAsScriptsWriteThemAndAsJson)
{
    const struct
    {
        const char* path;
        const char* text;
        const char* json;
    } rows[] = {
        {"amplitudes", "('ramp',)", "[\"ramp\"]"},
        {"amplitudes['ramp'].timeSpan", "STEP", "\"STEP\""},
        {"amplitudes['ramp'].smooth", "SOLVER_DEFAULT", "1.7976931348623157e308"},
        {"amplitudes['ramp'].data", "((0.0, 0.0), (1.0, 1.0))", "[[0, 0], [1, 1]]"},
        {"amplitudes['ramp'].data[1]", "(1.0, 1.0)", "[1, 1]"},
        {"amplitudes['ramp'].baselineCorrection", "None", "null"},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(row.text + std::string("\n"), RunProgram({"get", store, row.path}).out);
        EXPECT_EQ(row.json + std::string("\n"), RunProgram({"get", store, row.path, "--json"}).out);
    }
    EXPECT_THAT(RunProgram({"get", store, "model"}).out, HasSubstr("'amplitudes', "));
    EXPECT_THAT(RunProgram({"get", store, "model", "--json"}).out, HasSubstr("\"amplitudes\", "));
    EXPECT_EQ("TabularAmplitude(name='ramp', timeSpan=STEP, smooth=SOLVER_DEFAULT, "
              "data=((0.0, 0.0), (1.0, 1.0)), baselineCorrection=None)\n",
              RunProgram({"get", store, "model.amplitudes['ramp']"}).out);
}

TEST(CommandLine, TellsWhatWasProbablyMeant)
{
    const std::pair<std::vector<std::string>, const char*> rows[] = {
        {{"shwo"}, "vdbattr: there is no command shwo, expected one of catalog, "},
        {{"shwo"}, "; did you mean show?\n"},
        {{"catalog", "kamC_Tabula"}, "kamC_Tabula; did you mean kamC_Tabular?"},
        {{"catalog", "TabularAmplitud"}, "did you mean TabularAmplitude?"},
        {{""}, "there is no command , expected one of catalog"},
    };
    for (const auto& [arguments, message] : rows)
    {
        const Answer answer = RunProgram(arguments);
        EXPECT_EQ(2, answer.exitCode);
        EXPECT_THAT(answer.err, HasSubstr(message));
    }
}

/// What no command can use, each with what the message has to say.
TEST_F(Edit, BadInputEndsWithAMessageAndChangesNothing)
{
    const std::string deep(100000, '(');
    const std::string longName(100000, 'x');
    const std::string longPath = "amplitudes['ramp']" + []
    {
        std::string steps;
        for (int i = 0; i < 50000; ++i)
            steps += ".a";
        return steps;
    }();
    const struct
    {
        std::vector<std::string> arguments;
        std::string input;
        const char* message;
    } rows[] = {
        {{"get", ""}, "", "expected a path"},
        {{"get", " "}, "", "expected a path"},
        {{"get", "."}, "", "column 1: expected a path"},
        {{"get", "amplitudes[]"}, "", "expected a name in quotes or a position"},
        {{"get", "amplitudes['ramp'"},
         "",
         "expected \"]\", found the end of the line\n  amplitudes['ramp'\n"},
        {{"get", "amplitudes[99999999999999999999]"}, "", "expected a position of at most 4294967295"},
        {{"get", "amplitudes['ramp'].data[4294967295]"}, "", "there is no such element"},
        {{"get", "amplitudes['ramp'].data[0][0][0]"}, "", "expected a sequence, found 0.0"},
        {{"get", "amplitudes['\xff\xfe']"},
         "",
         "model.amplitudes['\\udcff\\udcfe']: there is no such object"},
        {{"get", "amplitudes[\x1b]"}, "", "found '\\x1b]'\n  amplitudes[?]\n             ^\n"},
        {{"get", "amplitudes['" + longName + "']"}, "", "there is no such object"},
        {{"get", longPath}, "", "kamC_Tabular has no such word"},
        {{"get", "stones['steel']"}, "", "model.stones: a model has no such repository"},
        {{"show", "amplitudes['rmp']"}, "", "did you mean 'ramp'?\n  model.amplitudes['rmp']\n"},
        {{"show", "amplitudes"}, "", "expected the path of an object"},
        {{"set", "amplitudes['ramp']", "smooth="}, "", "kamC_Tabular.smooth: column 1: expected a value"},
        {{"set", "amplitudes['ramp']", "=1"}, "", "expected WORD=VALUE"},
        {{"set", "amplitudes['ramp']", "smooth=1e999"}, "", "expected a number that a double can hold"},
        {{"set", "amplitudes['ramp']", "timeSpan=99999999999999999999999"}, "", "kamC_Tabular.timeSpan: "},
        {{"set", "amplitudes['ramp']", "data=" + deep}, "", "nested more than 100 deep"},
        {{"set", "amplitudes['ramp']", "data='\xc3'"}, "", "kamC_Tabular.data: expected rows of numbers"},
        {{"set", "amplitudes['ramp']", "smooth='a\\x00b'"}, "", "no text can hold a null character"},
        {{"set", "amplitudes['ramp']", "baselineCorrection=BaselineCorection()"}, "", "did you mean"},
        {{"set", "amplitudes", "smooth=1"}, "", "expected the path of an object"},
        {{"set", "amplitudes['ramp'].data[0]", "smooth=1"}, "", "expected an object"},
        {{"del", "amplitudes"}, "", "expected the path of an object"},
        {{"del", "amplitudes['ramp'].data"}, "", "expected the path of an object of a repository"},
        {{"rename", "amplitudes['ramp']", ""}, "", "expected a name that is neither empty"},
        {{"rename", "amplitudes['lamp']", "a"}, "", "did you mean 'ramp'?"},
        {{"new", "amplitudes['a']"}, "", "expected a constructor's call"},
        {{"new", "TabularAmplitud(name='a')"}, "", "did you mean TabularAmplitude?"},
        {{"new", "DecayAmplitude()"}, "", "kamC_Decay: the argument name is missing"},
        {{"new", "DecayAmplitude(name='a', initial='x')"}, "", "kamC_Decay.initial: expected a number"},
        {{"new", "DecayAmplitude(name='a'"}, "", "expected \",\", found the end of the line\n"},
        {{"new", "undo()"}, "", "there is no constructor undo"},
        {{"new", "amplitudes['ramp'].setValues(smooth=0.1)"}, "", "has no constructor setValues"},
        {{"new", "amplitudes['a']", "DecayAmplitud"}, "", "did you mean DecayAmplitude?"},
        {{"new", "amplitudes['a']", "DecayAmplitude", "initia=1"}, "", "did you mean initial?"},
        {{"run", folder.Path("none.py")}, "", "none.py: cannot be read"},
        {{"run", folder.Path("")}, "", "is a folder, expected a file"},
        {{"run", "-"},
         std::string("model.amplitudes['ramp']\0.smooth = 1", 36),
         "standard input:1: column 25"},
        {{"run", "-"}, std::string("mod\0el", 6), "standard input:1: column"},
        {{"run", "-"}, "\xef\xbb\xbfmodel", "standard input:1: column 1: expected a path"},
        {{"run", "-"}, "\n\n\xff\n", "standard input:3: column 1: expected a path"},
        {{"run", "-"}, "import os", "standard input:1: column 1: expected a path"},
        {{"run", "-"}, "model.undo()", "standard input:1: there is no command to undo"},
        {{"run", "-"}, "model.DecayAmplitude(name='a', initial=" + deep, "nested more than 100 deep"},
        {{"run", "-"},
         "model.DecayAmplitude(name='a', initial=" + std::string(1000000, '9') + ")",
         "expected an integer of 64 bits"},
        {{"run", "-"}, "model" + longPath.substr(18), "expected the path of an object"},
        {{"edit"}, "model.amplitudes['ramp'].smoth = 1", "did you mean smooth?"},
    };
    const std::string before = ContentOf(store);
    for (const auto& row : rows)
    {
        std::vector<std::string> arguments = row.arguments;
        arguments.insert(arguments.begin() + 1, store);
        const std::string shown = arguments.size() > 2 ? arguments[2].substr(0, 60) : "";
        SCOPED_TRACE(arguments[0] + ' ' + shown + ' ' + row.input.substr(0, 60));
        const Answer answer = RunProgram(arguments, row.input);
        EXPECT_EQ(2, answer.exitCode);
        EXPECT_EQ("", answer.out);
        EXPECT_EQ(0U, answer.err.find("vdbattr: "));
        EXPECT_THAT(answer.err, HasSubstr(row.message));
        EXPECT_LT(answer.err.size(), 2500U);
        EXPECT_EQ(before, ContentOf(store));
    }
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
    EXPECT_EQ(0, RunProgram({"run", again, "-"}, makeRamp + ContentOf(journal)).exitCode);
    EXPECT_EQ(RunProgram({"export", store}).out, RunProgram({"export", again}).out);
    EXPECT_EQ(0, RunProgram({"diff", store, again}).exitCode);
}

TEST_F(Edit, IsRefusedWithoutAJournalThatCanBeWritten)
{
    const std::pair<std::string, const char*> journals[] = {
        {folder.Path("no such folder/journal.py"), "journal.py: cannot be written: No such file"},
        {folder.Path(""), "cannot be written: Is a directory"},
        {store, "is the store, expected another file as journal"},
    };
    const std::vector<std::vector<std::string>> commands = {
        {"new", store, "DecayAmplitude(name='d')"},
        {"set", store, "amplitudes['ramp']", "smooth=0.1"},
        {"del", store, "amplitudes['ramp']"},
        {"rename", store, "amplitudes['ramp']", "rise"},
        {"edit", store},
        {"run", store, "-"},
        {"new", store, "--force"},
    };
    const std::string before = ContentOf(store);
    for (const auto& [path, message] : journals)
    {
        for (std::vector<std::string> command : commands)
        {
            command.insert(command.end(), {"--journal", path});
            const Answer answer = RunProgram(command, "model.amplitudes['ramp'].smooth = 0.1");
            EXPECT_EQ(2, answer.exitCode) << command[0];
            EXPECT_THAT(answer.err, HasSubstr(message));
            EXPECT_EQ(before, ContentOf(store));
        }
    }
}

TEST_F(Edit, TellsThatTheStoreIsChangedWhenTheJournalFailsAfterwards)
{
    const Answer answer = Script("model.amplitudes['ramp'].smooth = 0.1", {"--journal", "/dev/full"});
    EXPECT_EQ(2, answer.exitCode);
    EXPECT_EQ("vdbattr: /dev/full: cannot be written: No space left on device; " + store +
                  " is changed all the same\n",
              answer.err);
    EXPECT_EQ("0.1\n", RunProgram({"get", store, "amplitudes['ramp'].smooth"}).out);
}

TEST_F(Edit, TheJournalGoesOnBehindALineThatDoesNotEnd)
{
    folder.Write("journal.py", "# begun by hand");
    ASSERT_EQ(0, Script("model.amplitudes['ramp'].smooth = 0.1", {"--journal", journal}).exitCode);
    EXPECT_EQ("# begun by hand\nmodel.amplitudes['ramp'].setValues(smooth=0.1)\n", ContentOf(journal));
}

TEST_F(Edit, NothingIsWrittenDownThatIsNotSaved)
{
    // A store that cannot be saved over, for it holds a table that the program does not know.
    RunSql(store, "CREATE TABLE extra (a)");
    const std::string before = ContentOf(store);
    const Answer answer = Script("model.amplitudes['ramp'].smooth = 0.1", {"--journal", journal});
    EXPECT_EQ(2, answer.exitCode);
    EXPECT_EQ(before, ContentOf(store));
    EXPECT_EQ("", ContentOf(journal));
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
