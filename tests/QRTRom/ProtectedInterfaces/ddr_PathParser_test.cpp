#include "ddr_PathParser.h"

#include "ddr_TestSteps.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <regex>
#include <string>

namespace
{

using UnknownName = nex_CmdException<cow_String, 9>;

class PathParser : public testing::Test
{
protected:
    void SetUp() override { tst_RegisterSteps(); }

    /// The path of the shortcut that is read, or the error.
    static std::string Read(const char* path)
    {
        try
        {
            return ddr_ParsePath(path).Path().CString();
        }
        catch (const ddr_PathException& error)
        {
            return std::to_string(error.Column()) + ": " + error.GetText().CString();
        }
    }
};

TEST_F(PathParser, ReadsPathsOfEveryKind)
{
    const struct
    {
        const char* path;
        const char* shortcut;
        unsigned holder;
    } rows[] = {
        {"model", "model", 0xA0004},
        {"amplitudes", "model.amplitudes", 0x2440010},
        {"model.amplitudes", "model.amplitudes", 0x2440010},
        {"amplitudes['ramp']", "model.amplitudes['ramp']", 0x244000D},
        {"amplitudes[\"ramp\"]", "model.amplitudes['ramp']", 0x244000D},
        {"amplitudes['ramp'].baselineCorrection", "model.amplitudes['ramp'].baselineCorrection", 0x2440012},
        {"model.amplitudes['ramp'].baselineCorrection", "model.amplitudes['ramp'].baselineCorrection",
         0x2440012},
        {"numbered[4]", "model.numbered[4]", 0x244000D},
        {"numbered[-4].baselineCorrection", "model.numbered[-4].baselineCorrection", 0x2440012},
        {"amplitudes['a'].corrections['b']", "model.amplitudes['a'].corrections['b']", 0x2440012},
        {"amplitudes['']", "model.amplitudes['']", 0x244000D},
        {"amplitudes[' a b.c ']", "model.amplitudes[' a b.c ']", 0x244000D},
        {"amplitudes['Größe']", "model.amplitudes['Größe']", 0x244000D},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(Read(row.path), row.shortcut);
        EXPECT_EQ(ddr_ParsePath(row.path).Class().id, row.holder) << row.path;
    }
}

TEST_F(PathParser, TakesKeysAsTheyStandInSingleQuotes)
{
    for (const char* key :
         {"it's", "say \"a\"", "a\\", "a\\'b", "a]b", "['a", "a\nb", "'", "''", "a'] b", "a']b"})
        EXPECT_EQ(ddr_ParsePath(ToAmplitude(key).Path()).Name(), key);
}

TEST_F(PathParser, TakesAKeyThatLooksLikeAStepWhereOnlyOneReadingLeadsOn)
{
    for (const char* key : {"a']['b", "a'][3]['b", "a'].other", "a'].baselineCorrection['b"})
        EXPECT_EQ(ddr_ParsePath(ToAmplitude(key).Path()).Name(), key);
}

TEST_F(PathParser, TakesTheShortestKeyOfAPathOfTwoShortcuts)
{
    const kamC_AmplitudeShortcut longKey = ToAmplitude("a'].corrections['b");
    EXPECT_EQ(longKey.Path(), "model.amplitudes['a'].corrections['b']");
    EXPECT_EQ(ddr_ParsePath(longKey.Path()).Name(), "b");
    EXPECT_EQ(ddr_ParsePath(longKey.PythonPath()).Name(), "a'].corrections['b");
}

TEST_F(PathParser, ReadsEscapesInDoubleQuotes)
{
    const struct
    {
        const char* path;
        const char* key;
    } rows[] = {{"amplitudes[\"it's\"]", "it's"},
                {"amplitudes[\"a\\\"b\\\\c\\n\\r\\t\\'\"]", "a\"b\\c\n\r\t'"},
                {"amplitudes[\"\\x41\\xe9\\u20ac\\udcff\"]", "A\xC3\xA9\xE2\x82\xAC\xFF"},
                {"amplitudes[\"a\"].corrections[\"a'].b['c\"]", "a'].b['c"}};
    for (const auto& row : rows)
        EXPECT_EQ(ddr_ParsePath(row.path).Name(), row.key) << row.path;
}

TEST_F(PathParser, PointsAtTheErrorInTheText)
{
    const struct
    {
        const char* path;
        const char* error;
    } rows[] = {
        {"", "1: Path , column 1: expected a word."},
        {"amplitude['ramp']",
         "1: Path amplitude['ramp'], column 1: expected the word amplitudes, the word numbered."},
        {"model.amplitude",
         "6: Path model.amplitude, column 6: expected the word amplitudes, the word numbered."},
        {"model.", "7: Path model., column 7: expected a word."},
        {"['ramp']", "1: Path ['ramp'], column 1: expected the word amplitudes, the word numbered."},
        {"amplitudes['ramp", "17: Path amplitudes['ramp, column 17: expected \"']\" at the end of the key."},
        {"amplitudes['ramp'",
         "18: Path amplitudes['ramp', column 18: expected \"']\" at the end of the key."},
        {"amplitudes['ramp']x",
         "20: Path amplitudes['ramp']x, column 20: expected \"']\" at the end of the key."},
        {"amplitudes[\"ramp",
         "17: Path amplitudes[\"ramp, column 17: expected \"\"]\" at the end of the key."},
        {"amplitudes[\"a\\qb\"]",
         "14: Path amplitudes[\"a\\qb\"], column 14: expected an escape that Python has for texts."},
        {"amplitudes[\"a\\x0\"]",
         "14: Path amplitudes[\"a\\x0\"], column 14: expected an escape that Python has for texts."},
        {"amplitudes[\"a\\x00\"]",
         "14: Path amplitudes[\"a\\x00\"], column 14: expected an escape that Python has for texts."},
        {"amplitudes[\"a\\ud800\"]",
         "14: Path amplitudes[\"a\\ud800\"], column 14: expected an escape that Python has for texts."},
        {"amplitudes[\"a\"", "15: Path amplitudes[\"a\", column 15: expected \"]\"."},
        {"amplitudes[\"a\"]x", "16: Path amplitudes[\"a\"]x, column 16: expected \".\" or \"[\"."},
        {"amplitudes[ramp]",
         "12: Path amplitudes[ramp], column 12: expected a key in quotes or a whole number of 32 bits."},
        {"amplitudes[3]", "11: Path amplitudes[3], column 11: expected ['key']."},
        {"amplitudes.ramp", "11: Path amplitudes.ramp, column 11: expected ['key']."},
        {"numbered['a']", "9: Path numbered['a'], column 9: expected [index]."},
        {"numbered[1", "11: Path numbered[1, column 11: expected \"]\"."},
        {"numbered[99999999999]", "10: Path numbered[99999999999], column 10: expected a key in quotes or a "
                                  "whole number of 32 bits."},
        {"amplitudes['a'].smooth",
         "16: Path amplitudes['a'].smooth, column 16: expected the word baselineCorrection, "
         ".corrections['key'], .parts['key']."},
        {"amplitudes['a'].corrections",
         "28: Path amplitudes['a'].corrections, column 28: expected \".\" or \"[\"."},
        {"amplitudes['a'].baselineCorrection.intervals",
         "35: Path amplitudes['a'].baselineCorrection.intervals, column 35: expected the end of the path."},
    };
    // Repositories of other families stand between the two.
    const std::regex others("the word amplitudes(, the word [a-zA-Z]+)*, the word numbered");
    for (const auto& row : rows)
        EXPECT_EQ(std::regex_replace(Read(row.path), others, "the word amplitudes, the word numbered"),
                  row.error);
}

TEST_F(PathParser, ReadsPathsOfManyReadingsInTime)
{
    std::string path = "amplitudes['";
    for (int i = 0; i < 400; ++i)
        path += "a'].parts['";
    EXPECT_EQ(ddr_ParsePath((path + "b']").c_str()).Name(), "b");
    EXPECT_THROW(ddr_ParsePath((path + "b'].other").c_str()), ddr_PathException);
}

TEST_F(PathParser, RefusesPathsOfTooManySteps)
{
    std::string path = "amplitudes[\"a\"]";
    for (int i = 0; i < 5000; ++i)
        path += ".parts[\"b\"]";
    const std::string error = Read(path.c_str());
    EXPECT_NE(error.find("expected at most 1000 steps."), std::string::npos);
    EXPECT_EQ(error.substr(0, 6), "10994:");
}

TEST_F(PathParser, GivesAShortcutOfTheClassAskedFor)
{
    EXPECT_TRUE(ddr_ParsePathTo<kamC_Amplitude>("amplitudes['a']") == ToAmplitude("a"));
    EXPECT_TRUE(ddr_ParsePathTo<ddr_Model>("model").IsPresent());
    try
    {
        ddr_ParsePathTo<kamC_BaselineCorrection>("amplitudes['a']");
        ADD_FAILURE() << "nothing thrown";
    }
    catch (const ddr_PathException& error)
    {
        EXPECT_EQ(error.GetText(), "Path amplitudes['a'], column 16: expected the way to a "
                                   "kamC_BaselineCorrection, found that to a kamC_Amplitude.");
    }
}

TEST_F(PathParser, TakesTheStepThatDoesForAllAmplitudes)
{
    const auto shortcut = ddr_ParsePathTo<kamC_BaselineCorrection>("amplitudes['a'].baselineCorrection");
    EXPECT_EQ(shortcut.Impl()->DynTypeId(), kamC_BaselineCorrectionInAmplitudeShortcut::TypeId());
}

TEST_F(PathParser, LeadsToObjectsWithoutKnowingTheirClass)
{
    ddr_DdbContainer container;
    auto& amplitudes = dynamic_cast<kamC_AmplitudeContainer&>(*container.GetModel()->GetAmplitudes());
    amplitudes.Insert("a", new kamC_Tabular);
    const ddr_AnyShortcut amplitude = ddr_ParsePath("amplitudes['a']");
    EXPECT_EQ(amplitude.ConstGet(container), amplitudes.ConstGet("a"));
    EXPECT_EQ(amplitude.Get(container), amplitudes.ConstGet("a"));
    EXPECT_STREQ(amplitude.Class().description()->Name(), "kamC_Amplitude");
    EXPECT_EQ(amplitude.Class().targetId, kamC_Amplitude::TypeId());
    const ddr_AnyShortcut repository = ddr_ParsePath("amplitudes");
    EXPECT_EQ(repository.ConstGet(container), static_cast<const mdl_Extension*>(&amplitudes));
    EXPECT_STREQ(repository.Class().description()->Name(), "kamC_AmplitudeContainer");
    EXPECT_EQ(ddr_ParsePath("model").Class().description(), nullptr);
    EXPECT_EQ(ddr_ParsePath("amplitudes['a'].baselineCorrection").Get(container), nullptr);
    EXPECT_THROW(ddr_ParsePath("amplitudes['b']").Get(container), UnknownName);
}

RC_GTEST_FIXTURE_PROP(PathParser, ReadsEveryPythonPath, (std::string raw))
{
    const cow_String key = raw.c_str();
    RC_ASSERT(ddr_ParsePath(ToAmplitude(key.CString()).PythonPath()).Name() == key);
    const kamC_BaselineCorrectionShortcut below = ToCorrection<3>(key.CString());
    RC_ASSERT(ddr_ParsePathTo<kamC_BaselineCorrection>(below.PythonPath()) == below);
}

RC_GTEST_FIXTURE_PROP(PathParser, ReadsEveryPathOrRefusesIt, (std::string raw))
{
    static constexpr char letters[] = "a'[].\"\\0";
    std::string text;
    for (const char c : raw)
        text += letters[static_cast<unsigned char>(c) % (sizeof letters - 1)];
    RC_ASSERT(ddr_ParsePath(ToAmplitude(text.c_str()).Path()).Name() == text.c_str());
    try
    {
        ddr_ParsePath(text.c_str());
        ddr_ParsePath(("amplitudes" + text).c_str());
    }
    catch (const ddr_PathException& error)
    {
        RC_ASSERT(error.Column() >= 1);
        RC_ASSERT(error.Column() <= static_cast<int>(text.size()) + 11);
    }
}

} // namespace
