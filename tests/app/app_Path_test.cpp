#include "app_Path.h"

#include "app_Error.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace
{

TEST(Path, LeadsToAnObjectAndIntoIt)
{
    const app_Path path = app_ParsePath("amplitudes['a b'].baselineCorrection.intervals[12][\"k\"]");
    EXPECT_EQ("amplitudes", path.repositoryWord);
    EXPECT_EQ("a b", path.name);
    ASSERT_EQ(4U, path.steps.size());
    EXPECT_EQ("baselineCorrection", path.steps[0].text);
    EXPECT_EQ(app_Path::Step::Sort::Word, path.steps[1].sort);
    EXPECT_EQ(12U, path.steps[2].position);
    EXPECT_EQ(app_Path::Step::Sort::Key, path.steps[3].sort);
    EXPECT_EQ("amplitudes['a b'].baselineCorrection.intervals[12]['k']", path.Text(4));
}

TEST(Path, IsRefusedWithThePlaceOfTheFault)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", "expected a word at character 1"},
        {"amplitudes", "expected \"[\" at character 11"},
        {"amplitudes[ramp]", "expected a name in quotes at character 12"},
        {"amplitudes['ramp", "expected the closing quote at character 17"},
        {"amplitudes['ramp\\", "expected the closing quote at character 18"},
        {"amplitudes['ramp'", "expected \"]\" at character 18"},
        {"amplitudes['ramp'].", "expected a word at character 20"},
        {"amplitudes['ramp']x", "expected \"[\" at character 19"},
        {"amplitudes['ramp'].data[12345678901]", "at most nine digits"},
    };
    for (const auto& [text, reason] : cases)
    {
        try
        {
            app_ParsePath(text);
            ADD_FAILURE() << text;
        }
        catch (const app_Error& error)
        {
            EXPECT_NE(std::string::npos, std::string(error.what()).find(reason)) << error.what();
        }
    }
}

RC_GTEST_PROP(Path, AnyNameComesBack, (std::string name))
{
    RC_PRE(name.find('\0') == std::string::npos);
    RC_ASSERT(app_ParsePath(app_PathOf("amplitudes", name)).name == name);
}

} // namespace
