#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

TEST(Check, PassesAModelWhoseRulesHold)
{
    const Answer answer = RunProgram({"check", Example("earthquake.json")});
    EXPECT_EQ(0, answer.exitCode);
    EXPECT_EQ(Example("earthquake.json") + ": 14 objects, all rules hold\n", answer.out);
    EXPECT_EQ("", answer.err);
}

TEST(Check, ListsEveryFindingWithPathIdAndMessage)
{
    const Answer answer = RunProgram({"check", "--json", Example("broken.json")});
    EXPECT_EQ(1, answer.exitCode);
    const auto report = nlohmann::json::parse(answer.out);
    EXPECT_EQ(false, report.at("ok"));
    EXPECT_EQ(11, report.at("objects"));
    std::vector<std::string> found;
    for (const auto& finding : report.at("findings"))
        found.push_back(finding.at("path").get<std::string>() + ' ' + finding.at("id").get<std::string>());
    EXPECT_EQ(
        (std::vector<std::string>{"amplitudes['backwards'] kamC:0", "amplitudes['drifting'] kamC:19",
                                  "amplitudes['lonely'] kamC:12", "amplitudes['loud'] kamC:23",
                                  "amplitudes['off the band'] kamC:25", "amplitudes['silent'] kamC:22",
                                  "amplitudes['standing still'] kamC:9", "amplitudes['too smooth'] kamC:2",
                                  "amplitudes['upside down'] kamC:20", "amplitudes['wide'] kamC:11"}),
        found);
    EXPECT_EQ("Invalid time values, expected monotonically increasing numbers.",
              report.at("findings")[0].at("message"));
    EXPECT_EQ("kamC_Tabular", report.at("findings")[0].at("class"));
    EXPECT_EQ(0, report.at("findings")[0].at("code"));
}

TEST(Check, ShowsFindingsToPeople)
{
    const Answer answer = RunProgram({"check", Example("broken.json")});
    EXPECT_EQ(1, answer.exitCode);
    EXPECT_THAT(answer.out, HasSubstr("amplitudes['too smooth']      kamC:2   Invalid smoothing parameter"));
    EXPECT_THAT(answer.out, HasSubstr("11 objects, 10 findings\n"));
}

struct OneObject
{
    const char* json;
    int exitCode;
    const char* out;
};

TEST(Check, TakesABareObjectOfAnyClass)
{
    const OneObject cases[] = {
        {R"({"class": "kamC_Tabular", "data": [[0, 0], [1, 1]]})", 0, "1 object, all rules hold"},
        {R"({"class": "kamC_Tabular", "data": [[0, 0], [1, 1]], "smooth": "NaN"})", 1,
         "kamC_Tabular  kamC:2"},
        {R"({"intervals": [-1], "class": "kamC_BaselineCorrection"})", 1, "kamC_BaselineCorrection  kamC:19"},
        {R"({"class": "kamC_CorrelationComponent", "approach": "MOVING_NOISE"})", 1, "kamC:26"},
        {R"({"class": "kamC_Decay"})", 0, "1 object, all rules hold"},
    };
    for (const OneObject& one : cases)
    {
        const ScratchFolder folder;
        const Answer answer = RunProgram({"check", folder.Write("object.json", one.json)});
        EXPECT_EQ(one.exitCode, answer.exitCode) << one.json;
        EXPECT_THAT(answer.out, HasSubstr(one.out)) << one.json;
    }
}

TEST(Check, RefusesAnObjectThatCannotBeRead)
{
    const std::pair<const char*, const char*> cases[] = {
        {R"({"class": "kamC_Nothing"})", "object.json: class: no class has the name \"kamC_Nothing\""},
        {R"({"class": "kamC_Amplitude"})", "object.json: class: the class kamC_Amplitude is abstract"},
        {R"({"class": "kamC_Tabular", "smoth": 1})",
         "object.json: smoth: the class kamC_Tabular has no such attribute"},
        {R"({"class": "kamC_Tabular", "data": [[0, 0], [1, "x"]]})",
         "object.json: data[1][1]: expected a number"},
        {R"({"class": "kamC_Tabular", "data": [[0, 0], [1]]})",
         "object.json: data[1]: expected an array of 2"},
        {R"({"class": "kamC_Tabular", "timeSpan": "SPAN"})",
         "object.json: timeSpan: expected one of STEP, TOTAL"},
    };
    for (const auto& [json, reason] : cases)
    {
        const ScratchFolder folder;
        const Answer answer = RunProgram({"check", folder.Write("object.json", json)});
        EXPECT_EQ(2, answer.exitCode) << json;
        EXPECT_EQ("", answer.out);
        EXPECT_THAT(answer.err, HasSubstr(reason));
        EXPECT_EQ(1, std::count(answer.err.begin(), answer.err.end(), '\n')) << answer.err;
    }
}

TEST(Check, AnswersEachLineByALine)
{
    const Answer answer = RunProgram({"check", "--lines"}, ContentOf(Example("objects.jsonl")));
    EXPECT_EQ(1, answer.exitCode);
    EXPECT_EQ(
        "{\"ok\": true}\n"
        "{\"ok\": false, \"code\": 2, \"message\": \"Invalid smoothing parameter, expected a value between "
        "0.0 and 0.5.\"}\n"
        "{\"ok\": false, \"code\": 19, \"message\": \"Invalid baseline correction values, expected "
        "non-negative\\nmonotonically increasing numbers.\"}\n"
        "{\"ok\": false, \"code\": 28, \"message\": \"The data parameter cannot be specified with USER.\"}\n",
        answer.out);
    EXPECT_EQ("", answer.err);
}

TEST(Check, GoesOnAfterALineThatCannotBeRead)
{
    const Answer answer = RunProgram(
        {"check", "--lines"}, "{\"class\": \"kamC_Tabular\"\n\n{\"data\": []}\n[1]\n"
                              "{\"class\": \"kamC_Decay\", \"initial\": []}\n{\"class\": \"kamC_Decay\"}");
    EXPECT_EQ(2, answer.exitCode);
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < answer.out.size(); begin = answer.out.find('\n', begin) + 1)
        lines.push_back(answer.out.substr(begin, answer.out.find('\n', begin) - begin));
    ASSERT_EQ(6U, lines.size()) << answer.out;
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_THAT(lines[i], StartsWith("{\"ok\": false, \"error\": \"")) << i;
    EXPECT_THAT(lines[4], HasSubstr("initial: expected a number"));
    EXPECT_EQ("{\"ok\": true}", lines[5]);
}

TEST(Check, HasNothingToSayToNoLines)
{
    const Answer answer = RunProgram({"check", "--lines"});
    EXPECT_EQ(0, answer.exitCode);
    EXPECT_EQ("", answer.out);
}

TEST(Check, NeedsAFileOrLines)
{
    EXPECT_EQ(2, RunProgram({"check"}).exitCode);
    EXPECT_EQ(2, RunProgram({"check", "--lines", Example("broken.json")}).exitCode);
    EXPECT_EQ(2, RunProgram({"check", "/nowhere/model.json"}).exitCode);
}

} // namespace
