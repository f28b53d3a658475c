#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include <nlohmann/json.hpp>

namespace
{

using testing::HasSubstr;
using testing::MatchesRegex;

/// A store of one ramp.
class Store : public testing::Test
{
protected:
    void SetUp() override
    {
        Import(R"({"amplitudes": {"ramp": {"class": "kamC_Tabular", "data": [[0, 0], [1, 1]],
                                           "baselineCorrection": {"intervals": [0, 1]}},
                                  "slow": {"class": "kamC_Decay", "decayTime": 2}}})");
    }

    void Import(const std::string& json)
    {
        const Answer answer = RunProgram({"import", folder.Write("in.json", json), store, "--force"});
        ASSERT_EQ(0, answer.exitCode) << answer.err;
    }

    void Change(const std::string& sql) { RunSql(store, sql); }

    /// Expects that no command that reads the store succeeds, and that each says so on one line.
    void ExpectRefused(const std::vector<std::string>& parts)
    {
        for (const char* command : {"export", "show", "check"})
        {
            const Answer answer = RunProgram({command, store});
            EXPECT_EQ(2, answer.exitCode) << command << ": " << answer.out;
            EXPECT_EQ("", answer.out);
            EXPECT_EQ(1, std::count(answer.err.begin(), answer.err.end(), '\n')) << answer.err;
            EXPECT_THAT(answer.err, HasSubstr(store));
            for (const std::string& part : parts)
                EXPECT_THAT(answer.err, HasSubstr(part));
        }
    }

    std::string Get(const std::string& path, const std::string& word = "")
    {
        std::vector<std::string> arguments{"get", store, path};
        if (!word.empty())
            arguments.push_back(word);
        const Answer answer = RunProgram(arguments);
        EXPECT_EQ(0, answer.exitCode) << answer.err;
        return answer.out;
    }

    ScratchFolder folder;
    const std::string store = folder.Path("model.vdb");
};

TEST_F(Store, ComesBackAsTheTextThatWasImported)
{
    for (const char* example : {"earthquake.json"})
    {
        const std::string path = folder.Path("example.vdb");
        ASSERT_EQ(0, RunProgram({"import", Example(example), path}).exitCode);
        const Answer answer = RunProgram({"export", path});
        EXPECT_EQ(0, answer.exitCode);
        EXPECT_EQ(ContentOf(Example(example)), answer.out);
        EXPECT_EQ(0, RunProgram({"export", path, "-o", folder.Path("out.json")}).exitCode);
        EXPECT_EQ(answer.out, ContentOf(folder.Path("out.json")));
    }
}

TEST_F(Store, KeepsWhatIsHardToKeep)
{
    const char* const model = "{\n"
                              "  \"amplitudes\": {\n"
                              "    \"Größe 'x' [1].\\\\\": {\n"
                              "      \"class\": \"kamC_Tabular\",\n"
                              "      \"timeSpan\": \"TOTAL\",\n"
                              "      \"smooth\": \"NaN\",\n"
                              "      \"data\": [[0, -0.0], [\"Infinity\", \"-Infinity\"], [5e-324, 0.1]],\n"
                              "      \"baselineCorrection\": {\n"
                              "        \"class\": \"kamC_BaselineCorrection\",\n"
                              "        \"intervals\": []\n"
                              "      }\n"
                              "    }\n"
                              "  }\n"
                              "}\n";
    Import(model);
    EXPECT_EQ(model, RunProgram({"export", store}).out);
    EXPECT_EQ("\"Infinity\"\n",
              RunProgram({"get", store, "amplitudes['Größe \\'x\\' [1].\\\\'].data[1][0]", "--json"}).out);
}

TEST_F(Store, IsMadeEmptyAndFilledObjectByObject)
{
    const std::string fresh = folder.Path("fresh.vdb");
    EXPECT_EQ(0, RunProgram({"new", fresh}).exitCode);
    EXPECT_EQ("{}\n", RunProgram({"export", fresh}).out);
    const Answer again = RunProgram({"new", fresh});
    EXPECT_EQ(2, again.exitCode);
    EXPECT_THAT(again.err, HasSubstr(fresh + ": there is such a file already"));

    EXPECT_EQ(0, RunProgram({"new", fresh, "amplitudes['r']", "TabularAmplitude", "timeSpan=TOTAL",
                             "data=[[0,0],[1,1]]"})
                     .exitCode);
    EXPECT_EQ(2, RunProgram({"new", fresh, "amplitudes['r']", "kamC_Decay"}).exitCode);
    EXPECT_EQ("TOTAL\n", RunProgram({"get", fresh, "amplitudes['r']", "timeSpan"}).out);
    EXPECT_EQ(0, RunProgram({"new", fresh, "amplitudes['r']", "kamC_Decay", "--force"}).exitCode);
    EXPECT_EQ("\"kamC_Decay\"\n",
              nlohmann::json::parse(RunProgram({"get", fresh, "amplitudes['r']", "--json"}).out)
                      .at("class")
                      .dump() +
                  '\n');
    EXPECT_EQ(0, RunProgram({"new", fresh, "--force"}).exitCode);
    EXPECT_EQ("{}\n", RunProgram({"export", fresh}).out);
}

TEST_F(Store, RefusesAnObjectThatCannotBeMade)
{
    const std::vector<std::vector<std::string>> cases = {
        {"amplitudes['r']", "kamC_Amplitude"},
        {"amplitudes['r']", "kamC_BaselineCorrection"},
        {"amplitudes['r']", "Nothing"},
        {"amplitudes['r']"},
        {"amplitudes['r'].data", "kamC_Decay"},
        {"materials['r']", "kamC_Decay"},
        {"amplitudes['r']", "kamC_Decay", "initial"},
        {"amplitudes['r']", "kamC_Decay", "initial=x"},
    };
    const std::string before = ContentOf(store);
    for (const std::vector<std::string>& arguments : cases)
    {
        std::vector<std::string> all{"new", store};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const Answer answer = RunProgram(all);
        EXPECT_EQ(2, answer.exitCode) << answer.out;
        EXPECT_NE("", answer.err);
        EXPECT_EQ(before, ContentOf(store));
    }
}

TEST_F(Store, TakesNewValuesAsJsonOrPlainText)
{
    const Answer answer = RunProgram({"set", store, "amplitudes['ramp']", "smooth=0.25", "timeSpan=TOTAL",
                                      "data=[[0, 0], [2, 1], [3, 1]]"});
    EXPECT_EQ(0, answer.exitCode) << answer.err;
    EXPECT_THAT(answer.out, HasSubstr("amplitudes['ramp'].smooth: not set -> 0.25\n"));
    EXPECT_EQ("0.25\n", Get("amplitudes['ramp']", "smooth"));
    EXPECT_EQ("TOTAL\n", Get("amplitudes['ramp'].timeSpan"));
    EXPECT_EQ("((0.0, 0.0), (2.0, 1.0), (3.0, 1.0))\n", Get("amplitudes['ramp']", "data"));
    EXPECT_EQ("2.0\n", Get("amplitudes['ramp'].data[1][0]"));

    EXPECT_EQ(0,
              RunProgram({"set", store, "amplitudes['ramp']", "smooth=unset", "timeSpan=\"STEP\""}).exitCode);
    EXPECT_EQ("SOLVER_DEFAULT\n", Get("amplitudes['ramp']", "smooth"));
    EXPECT_EQ("STEP\n", Get("amplitudes['ramp']", "timeSpan"));
}

TEST_F(Store, ChangesObjectsWithinObjects)
{
    EXPECT_EQ(
        0,
        RunProgram({"set", store, "amplitudes['ramp'].baselineCorrection", "intervals=[1, 2, 3]"}).exitCode);
    EXPECT_EQ("(1.0, 2.0, 3.0)\n", Get("amplitudes['ramp'].baselineCorrection.intervals"));
    EXPECT_EQ(0, RunProgram({"set", store, "amplitudes['ramp']", "baselineCorrection=null"}).exitCode);
    EXPECT_EQ("None\n", Get("amplitudes['ramp'].baselineCorrection"));
    EXPECT_EQ(2,
              RunProgram({"set", store, "amplitudes['ramp'].baselineCorrection", "intervals=[1]"}).exitCode);
    EXPECT_EQ(0, RunProgram({"set", store, "amplitudes['ramp']", "baselineCorrection={}"}).exitCode);
    EXPECT_EQ("()\n", Get("amplitudes['ramp'].baselineCorrection.intervals"));
}

TEST_F(Store, TakesATextThatLooksLikeANumberAsText)
{
    Import(R"({"amplitudes": {"s": {"class": "kamC_SpectrumAmplitude"}}})");
    EXPECT_EQ(0, RunProgram({"set", store, "amplitudes['s']", "amplitude=12"}).exitCode);
    EXPECT_EQ("'12'\n", Get("amplitudes['s']", "amplitude"));
    EXPECT_EQ("\"12\"\n", RunProgram({"get", store, "amplitudes['s']", "amplitude", "--json"}).out);
}

TEST_F(Store, RefusesAChangeThatBreaksARule)
{
    const std::string before = ContentOf(store);
    const Answer answer = RunProgram({"set", store, "amplitudes['ramp']", "timeSpan=TOTAL", "smooth=0.75"});
    EXPECT_EQ(1, answer.exitCode);
    EXPECT_EQ("", answer.out);
    EXPECT_EQ(
        "vdbattr: model.amplitudes['ramp']: kamC:2 Invalid smoothing parameter, expected a value between 0.0 "
        "and 0.5.\n",
        answer.err);
    const Answer made = RunProgram({"new", store, "amplitudes['r']", "TabularAmplitude"});
    EXPECT_EQ(1, made.exitCode);
    EXPECT_THAT(made.err, HasSubstr("model.amplitudes['r']: kamC:12 The Time-Amplitude table should have"));
    EXPECT_EQ(before, ContentOf(store));
}

TEST_F(Store, WarnsOfARuleThatAnUncheckedChangeBreaks)
{
    const Answer answer =
        RunProgram({"set", store, "amplitudes['ramp']", "smooth=0.75", "--json", "--unchecked"});
    EXPECT_EQ(0, answer.exitCode);
    EXPECT_THAT(answer.err,
                HasSubstr("warning: model.amplitudes['ramp']: kamC:2 Invalid smoothing parameter"));
    const auto report = nlohmann::json::parse(answer.out);
    EXPECT_EQ("smooth", report.at("changes")[0].at("word"));
    EXPECT_EQ(0.75, report.at("changes")[0].at("after"));
    EXPECT_EQ(1, RunProgram({"check", store}).exitCode);
}

TEST_F(Store, StaysAsItIsWhenAChangeIsRefused)
{
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"amplitudes['ramp']", "smooth=0.1", "data=[[0, 0], [1, \"x\"]]"},
         "kamC_Tabular.data[1][1]: expected a number, found 'x'"},
        {{"amplitudes['ramp']", "smooth=much"},
         "kamC_Tabular.smooth: expected a number or SOLVER_DEFAULT, found much"},
        {{"amplitudes['ramp']", "timeSpan=SPAN"},
         "kamC_Tabular.timeSpan: found SPAN, expected one of STEP, TOTAL"},
        {{"amplitudes['ramp']", "data=[[0"},
         "kamC_Tabular.data: column 4: expected \",\" or \"]\", found the end of the line\n  [[0\n     ^\n"},
        {{"amplitudes['ramp']", "smooth=0,5"},
         "kamC_Tabular.smooth: column 2: expected the end of the line, found ',5'\n  0,5\n   ^\n"},
        {{"amplitudes['ramp']", "smoth=1"},
         "kamC_Tabular has no word smoth, given 1: expected one of timeSpan, smooth"},
        {{"amplitudes['lamp']", "smooth=1"},
         "model.amplitudes['lamp']: there is no such object; did you mean 'ramp'?"},
        {{"amplitude['ramp']", "smooth=1"},
         "model.amplitude: a model has no such repository, expected one of "},
        {{"amplitudes['ramp'].data", "smooth=1"}, "expected an object"},
        {{"amplitudes['ramp", "smooth=1"}, "column 17: expected the closing '"},
        {{"amplitudes['ramp']", "smooth"}, "expected WORD=VALUE"},
    };
    const std::string before = ContentOf(store);
    for (const auto& [arguments, reason] : cases)
    {
        std::vector<std::string> all{"set", store};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const Answer answer = RunProgram(all);
        EXPECT_EQ(2, answer.exitCode) << reason;
        EXPECT_EQ("", answer.out);
        EXPECT_THAT(answer.err, HasSubstr(reason));
        EXPECT_EQ(before, ContentOf(store)) << reason;
    }
}

TEST_F(Store, DeletesAndRenamesObjects)
{
    EXPECT_EQ(2, RunProgram({"rename", store, "amplitudes['ramp']", "slow"}).exitCode);
    EXPECT_EQ(0, RunProgram({"rename", store, "amplitudes['ramp']", "rise"}).exitCode);
    EXPECT_EQ("((0.0, 0.0), (1.0, 1.0))\n", Get("amplitudes['rise']", "data"));
    EXPECT_EQ(2, RunProgram({"get", store, "amplitudes['ramp']"}).exitCode);
    EXPECT_EQ(0, RunProgram({"rename", store, "amplitudes['rise']", "slow", "--force"}).exitCode);
    EXPECT_EQ("((0.0, 0.0), (1.0, 1.0))\n", Get("amplitudes['slow']", "data"));
    EXPECT_EQ(0, RunProgram({"del", store, "amplitudes['slow']"}).exitCode);
    EXPECT_EQ(2, RunProgram({"del", store, "amplitudes['slow']"}).exitCode);
    EXPECT_EQ("{}\n", RunProgram({"export", store}).out);
}

TEST_F(Store, IsShownToPeopleAndAsJson)
{
    const Answer list = RunProgram({"show", store});
    EXPECT_EQ(0, list.exitCode);
    EXPECT_THAT(list.out, HasSubstr("2 objects"));
    EXPECT_THAT(list.out, HasSubstr("ramp  Tabular  "));
    EXPECT_THAT(list.out, HasSubstr("decayTime=2"));
    const auto listed = nlohmann::json::parse(RunProgram({"show", store, "--json"}).out);
    EXPECT_EQ("kamC_Decay", listed.at("amplitudes")[1].at("class"));
    EXPECT_EQ("Decay", listed.at("amplitudes")[1].at("label"));

    const Answer one = RunProgram({"show", store, "amplitudes['ramp']"});
    EXPECT_EQ(0, one.exitCode);
    for (const char* part : {"amplitudes['ramp']  Tabular (kamC_Tabular)", "smooth              not set", "┤",
                             "time", "Its rules hold."})
        EXPECT_THAT(one.out, HasSubstr(part));
    const auto object =
        nlohmann::json::parse(RunProgram({"show", store, "amplitudes['ramp']", "--json"}).out);
    EXPECT_EQ("kamC_Tabular", object.at("class"));
    EXPECT_EQ(2, RunProgram({"show", store, "amplitudes['ramp'].data"}).exitCode);
}

TEST_F(Store, IsDumpedRowByRow)
{
    const Answer text = RunProgram({"dump", store});
    EXPECT_EQ(0, text.exitCode) << text.err;
    for (const char* part :
         {"rom_Root  -- 1 row\n", "\nkamC_Tabular: class 0x2440008, version 424, base 0x2440002  -- 1 row\n",
          "\nkamC_Amplitude: class 0x2440002, version 430  -- 2 rows\n", "\"STEP\"",
          "1.7976931348623157e+308", "0x230001", "[0, 0, 1, 1]"})
        EXPECT_THAT(text.out, HasSubstr(part));

    const auto dump = nlohmann::json::parse(RunProgram({"dump", store, "--json"}).out);
    EXPECT_EQ("model", dump.at("roots").at("rows")[0][1]);
    bool found = false;
    for (const auto& table : dump.at("tables"))
    {
        if (table.at("name") != "kamC_Decay")
            continue;
        found = true;
        EXPECT_EQ("0x2440003", table.at("class"));
        EXPECT_EQ(203, table.at("version"));
        EXPECT_EQ("decayTime", table.at("columns").back());
        EXPECT_EQ(2, table.at("rows")[0].back());
    }
    EXPECT_TRUE(found);
    EXPECT_EQ("ramp", dump.at("elements").at("rows")[0][3]);
}

TEST_F(Store, IsDumpedAtVersionsThatCannotBeRead)
{
    Change("UPDATE rom_Class SET Version = 4711, \"##Check\" = NULL WHERE Name = 'kamC_Decay'");
    ExpectRefused({"kamC_Decay", "4711"});
    const Answer answer = RunProgram({"dump", store});
    EXPECT_EQ(0, answer.exitCode) << answer.err;
    EXPECT_THAT(answer.out, HasSubstr("kamC_Decay: class 0x2440003, version 4711"));
}

TEST_F(Store, IsNotDumpedIfItIsNone)
{
    folder.Write("model.vdb", "hello");
    EXPECT_EQ(2, RunProgram({"dump", store}).exitCode);
}

TEST_F(Store, IsNotReplacedUnasked)
{
    const std::string before = ContentOf(store);
    const Answer answer = RunProgram({"import", Example("earthquake.json"), store});
    EXPECT_EQ(2, answer.exitCode);
    EXPECT_THAT(answer.err, HasSubstr("--force"));
    EXPECT_EQ(before, ContentOf(store));
}

TEST_F(Store, IsNotMadeOfABadModel)
{
    const std::string fresh = folder.Path("fresh.vdb");
    const std::pair<const char*, const char*> cases[] = {
        {"{\"amplitudes\": {\n\"a\": {\"class\": \"kamC_Tabular\",}}}", "bad.json:2:31: "},
        {"{\"amplitudes\": {\n\n\"a\": {\"class\": \"kamC_Tabular\",\n\"data\": [[0, 0], [1, true]]}}}",
         "bad.json:3: amplitudes['a'].data[1][1]: expected a number, found true"},
        {"{\"amplitudes\": {\"a\": {\"class\": \"kamC_Tabular\", \"smoth\": 1}}}",
         "bad.json:1: amplitudes['a'].smoth: the class kamC_Tabular has no such attribute"},
        {"{\"amplitudes\": {\"a\": {\"class\": \"kamC_Table\"}}}",
         "amplitudes['a'].class: no class has the name \"kamC_Table\""},
        {"{\"amplitudes\": {\"a\": {\"class\": \"kamC_BaselineCorrection\"}}}",
         "amplitudes['a'].class: expected a kamC_Amplitude"},
        {"{\"amplitudes\": {\"a\": {\"class\": \"kamC_Amplitude\"}}}",
         "amplitudes['a'].class: the class kamC_Amplitude is abstract"},
        {"{\"amplitudes\": {\"a\": {}}}", "amplitudes['a'].class: expected the name of a class"},
        {"{\"amplitudes\": {\"a\": 5}}", "amplitudes['a']: expected an object, found 5"},
        {"{\"amplitudes\": []}", "amplitudes: expected a repository"},
        {"{\"amplitudes\": 1}", "amplitudes: expected a repository"},
        {"{\"amplitude\": {}}", "model.amplitude: a model has no such repository, expected one of "},
        {"[]", "expected a model"},
        {"5", "expected a model"},
        {"", "unexpected end of input"},
        {"{\"amplitudes\": {\"a\": {\"class\": \"kamC_Decay\"}, \"a\": {\"class\": \"kamC_Decay\"}}}",
         "the name \"a\" stands twice"},
        {"{\"amplitudes\": {\"a\": {\"class\": \"kamC_Tabular\", \"timeSpan\": \"SPAN\"}}}",
         "amplitudes['a'].timeSpan: expected one of STEP, TOTAL, found \"SPAN\""},
    };
    for (const auto& [json, reason] : cases)
    {
        const Answer answer = RunProgram({"import", folder.Write("bad.json", json), fresh});
        EXPECT_EQ(2, answer.exitCode) << json;
        EXPECT_EQ("", answer.out);
        EXPECT_THAT(answer.err, HasSubstr(reason));
        EXPECT_EQ(1, std::count(answer.err.begin(), answer.err.end(), '\n')) << answer.err;
        EXPECT_FALSE(std::filesystem::exists(fresh)) << json;
    }
}

TEST_F(Store, IsRefusedIfItIsNone)
{
    for (const std::string& content : {std::string(), std::string("hello"), std::string(100000, '\x7f')})
    {
        folder.Write("model.vdb", content);
        ExpectRefused({});
    }
}

TEST_F(Store, IsRefusedAtAnyTruncation)
{
    const std::string whole = ContentOf(store);
    ASSERT_GT(whole.size(), 16384U);
    for (std::size_t length = 1; length < whole.size(); length += whole.size() / 7)
    {
        folder.Write("model.vdb", whole.substr(0, length));
        ExpectRefused({});
    }
}

TEST_F(Store, WithFlippedBitsIsReadAsItWasOrRefused)
{
    const std::string whole = ContentOf(store);
    const std::string model = RunProgram({"export", store}).out;
    int refused = 0;
    for (std::size_t position = 7; position < whole.size(); position += whole.size() / 97)
    {
        std::string damaged = whole;
        damaged[position] = static_cast<char>(damaged[position] ^ 0x10);
        folder.Write("model.vdb", damaged);
        const Answer answer = RunProgram({"export", store});
        ASSERT_TRUE(answer.exitCode == 0 || answer.exitCode == 2) << position;
        refused += answer.exitCode == 2;
        if (answer.exitCode == 0)
            EXPECT_EQ(model, answer.out) << position;
        else
            EXPECT_EQ("", answer.out);
    }
    EXPECT_GT(refused, 0);
}

TEST_F(Store, IsRefusedFromANewerRelease)
{
    Change("PRAGMA user_version = 1000000");
    ExpectRefused({"newer"});
}

TEST_F(Store, IsRefusedFromAnotherProgram)
{
    Change("PRAGMA application_id = 1234567");
    ExpectRefused({});
}

TEST_F(Store, IsRefusedWithoutATableThatItNeeds)
{
    Change("DROP TABLE kamC_Tabular");
    ExpectRefused({"kamC_Tabular"});
}

TEST_F(Store, IsRefusedWithoutAColumnThatItNeeds)
{
    Change("ALTER TABLE kamC_Decay DROP COLUMN decayTime");
    ExpectRefused({"kamC_Decay", "decayTime"});
}

TEST_F(Store, IsRefusedWithoutARowThatItNeeds)
{
    Change("DELETE FROM kamC_Amplitude");
    ExpectRefused({"kamC_Amplitude", "row"});
}

TEST_F(Store, IsRefusedWithAValueOfAnotherKind)
{
    Change("UPDATE kamC_Decay SET decayTime = 'slow', \"##Check\" = NULL");
    ExpectRefused({"kamC_Decay", "row", "decayTime"});
}

TEST_F(Store, IsRefusedWithATextOutsideItsEnumeration)
{
    Change("UPDATE kamC_Amplitude SET timeSpan = 'SPAN', \"##Check\" = NULL");
    ExpectRefused({"kamC_Amplitude", "row", "timeSpan", "SPAN"});
}

TEST_F(Store, IsRefusedWithADanglingReference)
{
    Change("UPDATE kamC_Tabular SET \"baselineCorrection#OID\" = 4711, \"##Check\" = NULL");
    ExpectRefused({"4711"});
}

TEST_F(Store, IsRefusedWithAReferenceToAnotherClass)
{
    Change("UPDATE kamC_Tabular SET \"baselineCorrection#ClassID\" = " + std::to_string(0x2440003) +
           ", \"##Check\" = NULL");
    ExpectRefused({"kamC_Tabular", "baselineCorrection"});
}

TEST_F(Store, IsRefusedWithAnArrayThatDoesNotFitItsShape)
{
    const char* const changes[] = {
        "UPDATE cls_List SET \"Target#Length\" = 5, \"##Check\" = NULL WHERE \"Target#Collection\" = 82",
        "UPDATE cls_List SET \"Target#Columns\" = 3, \"##Check\" = NULL WHERE \"Target#Collection\" = 82",
        "UPDATE cls_List SET \"Target#Length\" = 4000000000000, \"##Check\" = NULL",
        "UPDATE rfm_Array SET Bytes = x'00', \"##Check\" = NULL",
        "UPDATE rfm_Array SET Length = -1, \"##Check\" = NULL",
    };
    const std::string whole = ContentOf(store);
    for (const char* change : changes)
    {
        folder.Write("model.vdb", whole);
        Change(change);
        SCOPED_TRACE(change);
        ExpectRefused({});
    }
}

TEST_F(Store, IsRefusedWithTwoNamedObjectsInOneRow)
{
    // The container's map is made to hold itself.
    Change("UPDATE rom_Element SET \"Target#ClassID\" = ClassID, \"Target#OID\" = OID, \"##Check\" = NULL");
    ExpectRefused({});
}

TEST_F(Store, HoldsTheOldModelOrTheNewOneWhenASaveIsKilled)
{
    const std::string oldModel = RunProgram({"export", store}).out;
    std::string json = "{\"amplitudes\": {";
    for (int i = 0; i < 4000; ++i)
        json += (i == 0 ? "\"n" : ", \"n") + std::to_string(i) +
                "\": {\"class\": \"kamC_Tabular\", \"data\": [[0, 0], [1, 1]]}";
    const std::string input = folder.Write("new.json", json + "}}");
    const std::string newModel = RunProgram({"export", input}).out;
    const std::string before = ContentOf(store);
    for (int milliseconds = 0; milliseconds < 200; milliseconds += 10)
    {
        folder.Write("model.vdb", before);
        KillProgram({"import", "--force", input, store}, milliseconds);
        const Answer answer = RunProgram({"export", store});
        ASSERT_EQ(0, answer.exitCode) << answer.err;
        ASSERT_TRUE(answer.out == oldModel || answer.out == newModel) << milliseconds;
        std::filesystem::remove(store + "-journal");
    }
}

} // namespace
