#include "Program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include <nlohmann/json.hpp>

namespace
{

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* oldRows = R"(rom_Root
  OID  Name    Target
  1    "ramp"  0x2440008:1

kamC_Amplitude: class 0x2440002, version 203
  OID  definition:text  time:text  value:text
  1    "TABULAR"        "STEP"     "RELATIVE"

nobody_Knows: class 0x7F0001, version 1, base 0x7F0002
  OID  ##BaseClassOID  x:real
  1    1               NaN
)";

/// A store and its text.
class Rows : public testing::Test
{
protected:
    Answer Dump() { return RunProgram({"dump", store}); }

    Answer Load(const std::string& rows, const std::vector<std::string>& more = {})
    {
        std::vector<std::string> arguments = {"load", folder.Write("in.rows", rows), store};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return RunProgram(arguments);
    }

    ScratchFolder folder;
    std::string store = folder.Path("model.vdb");
};

TEST_F(Rows, OfAModelComeBack)
{
    ASSERT_EQ(0, RunProgram({"import", Example("earthquake.json"), store}).exitCode);
    const Answer dump = Dump();
    EXPECT_EQ(0, dump.exitCode) << dump.err;
    const std::string copy = folder.Path("copy.vdb");
    const Answer load = RunProgram({"load", folder.Write("rows", dump.out), copy});
    EXPECT_EQ(0, load.exitCode) << load.err;
    EXPECT_EQ("", load.out + load.err);
    EXPECT_EQ(dump.out, RunProgram({"dump", copy}).out);
    EXPECT_EQ(RunProgram({"export", store}).out, RunProgram({"export", copy}).out);
    EXPECT_EQ(RunProgram({"dump", store, "--json"}).out.size(),
              RunProgram({"dump", copy, "--json"}).out.size() + 1)
        << "the name of the copy is one letter shorter";
}

TEST_F(Rows, OfOldVersionsAndUnknownClassesAreLoaded)
{
    const Answer answer = Load(oldRows);
    EXPECT_EQ(0, answer.exitCode) << answer.err;
    const Answer dump = Dump();
    EXPECT_EQ(0, dump.exitCode) << dump.err;
    EXPECT_THAT(dump.out, HasSubstr("kamC_Amplitude: class 0x2440002, version 203"));
    EXPECT_THAT(dump.out, HasSubstr("nobody_Knows: class 0x7F0001, version 1, base 0x7F0002"));
    const auto json = nlohmann::json::parse(RunProgram({"dump", store, "--json"}).out);
    EXPECT_EQ("nobody_Knows", json.at("tables")[0].at("name"));
    EXPECT_EQ(203, json.at("tables")[1].at("version"));
    ASSERT_EQ(0, Load(dump.out, {"--force"}).exitCode);
    EXPECT_EQ(dump.out, Dump().out);
}

TEST_F(Rows, ReplaceNothingUnasked)
{
    ASSERT_EQ(0, Load(oldRows).exitCode);
    const std::string before = ContentOf(store);
    const Answer refused = Load("rom_Root\n");
    EXPECT_EQ(2, refused.exitCode);
    EXPECT_THAT(refused.err, HasSubstr("--force"));
    EXPECT_EQ(before, ContentOf(store));
    EXPECT_EQ(0, Load("A: class 1, version 2\n  OID\n", {"--force"}).exitCode);
    EXPECT_EQ("A: class 0x1, version 2  -- 0 rows\n  OID\n", Dump().out);
}

TEST_F(Rows, ReplaceNothingThatIsNoStore)
{
    folder.Write("model.vdb", "a letter");
    const Answer refused = Load(oldRows, {"--force"});
    EXPECT_EQ(2, refused.exitCode);
    EXPECT_EQ("a letter", ContentOf(store));
}

TEST_F(Rows, ThatAreRefusedChangeNothing)
{
    const std::string bad = "A: class 1, version 2\n  OID x:integer\n  1 \"12\"\n";
    const Answer first = Load(bad);
    EXPECT_EQ(2, first.exitCode);
    EXPECT_THAT(first.err, HasSubstr("in.rows:3:5: expected a whole number\n"));
    EXPECT_FALSE(std::filesystem::exists(store));
    EXPECT_FALSE(std::filesystem::exists(store + ".saving"));
    ASSERT_EQ(0, Load(oldRows).exitCode);
    const std::string before = Dump().out;
    EXPECT_EQ(2, Load(bad, {"--force"}).exitCode);
    EXPECT_EQ(before, Dump().out);
    const Answer none = RunProgram({"load", folder.Path("none.rows"), folder.Path("other.vdb")});
    EXPECT_EQ(2, none.exitCode);
    EXPECT_THAT(none.err, HasSubstr("none.rows"));
}

TEST_F(Rows, ThatAreDamagedAreMarked)
{
    ASSERT_EQ(0, Load(oldRows).exitCode);
    RunSql(store, "UPDATE kamC_Amplitude SET time = 'TOTAL'");
    const Answer dump = Dump();
    EXPECT_EQ(1, dump.exitCode);
    EXPECT_EQ("vdbattr: warning: " + store + ": 1 row does not fit the check number\n", dump.err);
    EXPECT_THAT(dump.out, HasSubstr("-- damaged: the row does not fit its check number\n"));
    EXPECT_EQ(2, RunProgram({"dump", store, "--json"}).exitCode);
    ASSERT_EQ(0, Load(dump.out, {"--force"}).exitCode);
    EXPECT_EQ(dump.out, Dump().out);
}

TEST_F(Rows, OfAStoreMadeByHandAreDumped)
{
    ASSERT_EQ(0, Load(oldRows).exitCode);
    RunSql(store,
           "DROP TABLE rom_Element; DROP TABLE rfm_Array; UPDATE kamC_Amplitude SET \"##Check\" = NULL");
    EXPECT_THAT(Dump().out, HasSubstr("check=-"));
    EXPECT_EQ(0, RunProgram({"dump", store, "--json"}).exitCode);
}

} // namespace
