#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include <nlohmann/json.hpp>

namespace
{

using testing::HasSubstr;

const char* const oldRows = OVR_SOURCE_DIR "/tests/stores/amplitudes_203.rows";
const char* const expectedRows = OVR_SOURCE_DIR "/tests/stores/amplitudes_203.expected.rows";

const char* const planOfOldRows =
    "  kamC_Amplitude      12 rows  from 203  to 430  by 208, 424 (Upgrade_kamC_Amplitude_208_424), 430\n"
    "  kamC_EquallySpaced    1 row  from 203  to 424  by 424 (Upgrade_kamC_EquallySpaced_203_424)\n"
    "  kamC_Periodic         1 row  from 203  to 424  by 424 (Upgrade_kamC_Periodic_203_424)\n"
    "  kamC_Tabular          1 row  from 203  to 424  by 424 (Upgrade_kamC_Tabular_203_424)\n"
    "  kamC_SmoothStep       1 row  from 203  to 424  by 424 (Upgrade_kamC_SmoothStep_203_424)\n";

/// A store of an old release, and a place for what its upgrade makes.
class OldModel : public testing::Test
{
protected:
    void SetUp() override { Load(oldRows, old); }

    static void Load(const std::string& rows, const std::string& store)
    {
        const Answer answer = RunProgram({"load", rows, store});
        ASSERT_EQ(0, answer.exitCode) << answer.err;
    }

    void Upgrade()
    {
        const Answer answer = RunProgram({"upgrade", old, fresh});
        ASSERT_EQ(0, answer.exitCode) << answer.err;
    }

    std::set<std::string> Files() const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path("")))
            names.insert(entry.path().filename().string());
        return names;
    }

    /// Expects that a command tells on one line why it does nothing, and that it does nothing.
    void ExpectRefused(const std::vector<std::string>& arguments, const std::vector<std::string>& parts)
    {
        const std::string before = ContentOf(old);
        const std::set<std::string> files = Files();
        const Answer answer = RunProgram(arguments);
        EXPECT_EQ(2, answer.exitCode) << arguments[0] << ": " << answer.out;
        EXPECT_EQ("", answer.out) << arguments[0];
        EXPECT_EQ(1, std::count(answer.err.begin(), answer.err.end(), '\n')) << answer.err;
        for (const std::string& part : parts)
            EXPECT_THAT(answer.err, HasSubstr(part)) << arguments[0];
        EXPECT_EQ(before, ContentOf(old)) << arguments[0];
        EXPECT_EQ(files, Files()) << arguments[0];
    }

    void ExpectNoUpgrade(const std::vector<std::string>& parts)
    {
        ExpectRefused({"upgrade", old, fresh}, parts);
        ExpectRefused({"upgrade", old, fresh, "--json"}, parts);
        ExpectRefused({"upgrade", "--dry-run", old}, parts);
    }

    ScratchFolder folder;
    const std::string old = folder.Path("old.vdb");
    const std::string fresh = folder.Path("new.vdb");
};

TEST_F(OldModel, BecomesOneOfThisRelease)
{
    const std::string before = ContentOf(old);
    const Answer answer = RunProgram({"upgrade", old, fresh});
    EXPECT_EQ(0, answer.exitCode);
    EXPECT_EQ("", answer.err);
    EXPECT_EQ(fresh + ": 5 of 20 tables upgraded, 38 rows taken over\n" + planOfOldRows, answer.out);
    EXPECT_EQ(before, ContentOf(old));
    EXPECT_EQ((std::set<std::string>{"new.vdb", "old.vdb"}), Files());

    const std::string expected = folder.Path("expected.vdb");
    Load(expectedRows, expected);
    const Answer exported = RunProgram({"export", fresh});
    EXPECT_EQ(0, exported.exitCode) << exported.err;
    EXPECT_EQ(RunProgram({"export", expected}).out, exported.out);
    EXPECT_EQ("TOTAL\n", RunProgram({"get", fresh, "amplitudes['tabular']", "timeSpan"}).out);
    EXPECT_EQ(0, RunProgram({"check", fresh}).exitCode);
    EXPECT_EQ(0, RunProgram({"set", fresh, "amplitudes['tabular']", "timeSpan=STEP"}).exitCode);
}

TEST_F(OldModel, TellsWhatWouldBeDone)
{
    const std::string before = ContentOf(old);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"upgrade", "--dry-run", old}, {"upgrade", old, fresh, "--dry-run"}})
    {
        const Answer answer = RunProgram(arguments);
        EXPECT_EQ(0, answer.exitCode) << answer.err;
        EXPECT_EQ("", answer.err);
        EXPECT_EQ(old + ": 5 of 20 tables to be upgraded\n" + planOfOldRows, answer.out);
        EXPECT_EQ(before, ContentOf(old));
        EXPECT_EQ((std::set<std::string>{"old.vdb"}), Files());
    }
}

TEST_F(OldModel, IsReportedAsJson)
{
    const Answer planned = RunProgram({"upgrade", "--dry-run", old, "--json"});
    EXPECT_EQ(0, planned.exitCode) << planned.err;
    EXPECT_FALSE(std::filesystem::exists(fresh));
    const auto plan = nlohmann::json::parse(planned.out);
    EXPECT_EQ(old, plan.at("old"));
    EXPECT_TRUE(plan.at("new").is_null());
    EXPECT_EQ(false, plan.at("current"));
    EXPECT_EQ(20u, plan.at("tables").size());
    const auto& tables = plan.at("tables");
    const auto amplitudes = std::find_if(tables.begin(), tables.end(),
                                         [](const auto& table) { return table.at("id") == "0x2440002"; });
    ASSERT_NE(tables.end(), amplitudes);
    EXPECT_EQ(nlohmann::json::parse(R"({"name": "kamC_Amplitude", "id": "0x2440002", "rows": 12,
        "from": 203, "to": 430,
        "steps": [{"from": 203, "to": 208},
                  {"from": 208, "to": 424, "functions": "Upgrade_kamC_Amplitude_208_424"},
                  {"from": 424, "to": 430}]})"),
              *amplitudes);

    const Answer done = RunProgram({"upgrade", old, fresh, "--json"});
    EXPECT_EQ(0, done.exitCode) << done.err;
    auto report = nlohmann::json::parse(done.out);
    EXPECT_EQ(fresh, report.at("new"));
    report["new"] = nullptr;
    EXPECT_EQ(plan, report);
}

TEST_F(OldModel, IsCopiedWhenItIsOfThisRelease)
{
    Upgrade();
    const std::string again = folder.Path("again.vdb");
    const std::string planned = RunProgram({"upgrade", "--dry-run", fresh}).out;
    EXPECT_EQ(fresh + ": all tables have the form of this release\n", planned);
    EXPECT_FALSE(std::filesystem::exists(again));
    const Answer copied = RunProgram({"upgrade", fresh, again});
    EXPECT_EQ(0, copied.exitCode) << copied.err;
    EXPECT_EQ(fresh + ": all tables have the form of this release, " + again + " holds the same rows\n",
              copied.out);
    EXPECT_EQ(RunProgram({"dump", fresh}).out, RunProgram({"dump", again}).out);
    const auto report = nlohmann::json::parse(RunProgram({"upgrade", "--dry-run", again, "--json"}).out);
    EXPECT_EQ(true, report.at("current"));
}

TEST_F(OldModel, IsReadAndChangedByNoOtherCommand)
{
    const std::vector<std::string> commands[] = {
        {"show", old},
        {"check", old},
        {"export", old},
        {"get", old, "amplitudes['tabular']"},
        {"set", old, "amplitudes['tabular']", "smooth=0.25"},
        {"del", old, "amplitudes['tabular']"},
        {"rename", old, "amplitudes['tabular']", "ramp"},
        {"new", old, "amplitudes['ramp']", "kamC_Decay"},
        {"diff", old, old},
    };
    for (const std::vector<std::string>& command : commands)
        ExpectRefused(command, {old + ": table kamC_Amplitude: ", "version 203", "version 430",
                                "`vdbattr upgrade OLD NEW`"});
}

TEST_F(OldModel, IsReplacedByNoUpgrade)
{
    const std::string again = folder.Path("again.vdb");
    const std::string kept = folder.Write("kept", "mine");
    std::filesystem::create_directory(again);
    ExpectRefused({"upgrade", old, old}, {old, "there is such a file already"});
    ExpectRefused({"upgrade", old, kept}, {kept, "there is such a file already"});
    ExpectRefused({"upgrade", old, again}, {again, "there is such a file already"});
    ExpectRefused({"upgrade", old}, {"the name of the new store is missing"});
    ExpectRefused({"upgrade", old, folder.Path("none/new.vdb")}, {"none/new.vdb"});
    EXPECT_EQ("mine", ContentOf(kept));
}

TEST_F(OldModel, MustBeThere)
{
    const std::string none = folder.Path("none.vdb");
    ExpectRefused({"upgrade", none, fresh}, {none, "No such file"});
    ExpectRefused({"upgrade", "--dry-run", none}, {none, "No such file"});
    ExpectRefused({"upgrade", folder.Path(""), fresh}, {"This is a folder, not a stored model."});
}

TEST_F(OldModel, MustBeAStore)
{
    const std::string whole = ContentOf(old);
    for (const std::string& content : {std::string(), std::string("a letter"), std::string(100000, '\x7f'),
                                       whole.substr(0, whole.size() / 2)})
    {
        folder.Write("old.vdb", content);
        ExpectNoUpgrade({old});
    }
}

TEST_F(OldModel, MustBeWhole)
{
    RunSql(old, "UPDATE kamC_Amplitude SET time = 'STEP' WHERE OID = 6");
    ExpectRefused({"upgrade", old, fresh},
                  {old + ": table kamC_Amplitude, row 6, field ##Check: ", "the file is damaged"});
}

/// What is done to the old store, and what is told of it then.
struct Obstacle
{
    const char* name;
    const char* sql;
    const char* reason;
};

class OldModelWith : public OldModel, public testing::WithParamInterface<Obstacle>
{};

TEST_P(OldModelWith, IsRefused)
{
    RunSql(old, GetParam().sql);
    ExpectNoUpgrade({old, GetParam().reason});
}

INSTANTIATE_TEST_SUITE_P(
    Obstacles, OldModelWith,
    testing::Values(
        Obstacle{"AnUnknownClass",
                 "CREATE TABLE nobody_Knows (OID INTEGER PRIMARY KEY, \"##Uid\" BLOB, \"##Check\" INTEGER);"
                 "INSERT INTO rom_Class VALUES (0x7F0001, 'nobody_Knows', 1, 1, NULL)",
                 "table nobody_Knows: The table is of a class that this release does not know, nobody_Knows "
                 "(0x7F0001), and an upgrade would lose it."},
        Obstacle{"AVersionThatNoReleaseHad",
                 "UPDATE rom_Class SET Version = 300, \"##Check\" = NULL WHERE Name = 'kamC_Amplitude'",
                 "table kamC_Amplitude: No release has stored the class kamC_Amplitude (0x2440002) with "
                 "version 300."},
        Obstacle{"ANewerVersion",
                 "UPDATE rom_Class SET Version = 4711, \"##Check\" = NULL WHERE Name = 'kamC_Amplitude'",
                 "table kamC_Amplitude: The table was written by a newer release: it has version 4711, and "
                 "this release knows version 430."},
        Obstacle{"ANewerLayout", "PRAGMA user_version = 1000000", "newer"},
        Obstacle{"APartOfAnotherProgram", "CREATE TABLE stranger (a)",
                 "table stranger: The file holds parts that this release does not know"},
        Obstacle{"AColumnThatTheClassNeverHad", "ALTER TABLE kamC_Amplitude ADD COLUMN colour TEXT",
                 "table kamC_Amplitude, field colour: The class has no such attribute."}),
    [](const auto& info) { return info.param.name; });

TEST_F(OldModel, MayLackColumnsAndHaveThoseOfLaterVersions)
{
    RunSql(old, "ALTER TABLE kamC_Amplitude DROP COLUMN time;"
                "ALTER TABLE kamC_Amplitude ADD COLUMN timeSpan TEXT;"
                "UPDATE kamC_Amplitude SET timeSpan = 'TOTAL' WHERE OID = 1;"
                "UPDATE kamC_Amplitude SET \"##Check\" = NULL");
    Upgrade();
    EXPECT_EQ("TOTAL\n", RunProgram({"get", fresh, "amplitudes['decay']", "timeSpan"}).out);
    EXPECT_EQ("STEP\n", RunProgram({"get", fresh, "amplitudes['tabular']", "timeSpan"}).out);
}

} // namespace
