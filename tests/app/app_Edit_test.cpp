#include "app_Edit.h"

#include "LibraryEnvironment.h"
#include "cmd_Error.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

namespace
{

using testing::HasSubstr;

/// What a talk line by line prints and warns of.
struct Talk
{
    std::string out;
    std::string err;
};

Talk TalkOf(cmd_Session& session, const std::string& typed)
{
    std::istringstream input(typed);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    app_TalkScript(session, input);
    return {testing::internal::GetCapturedStdout(), testing::internal::GetCapturedStderr()};
}

TEST(Editing, AtATerminalALineThatIsRefusedCanBeTypedAgain)
{
    LibraryEnvironment::Require();
    cmd_Session session;
    const Talk talk = TalkOf(session, "model.TabularAmplitude(name='ramp')\n"
                                      "model.TabularAmplitude(name='ramp', data=((0, 0), (1, 1))\n"
                                      "model.TabularAmplitude(name='ramp', data=((0, 0), (1, 1)))\n"
                                      "model.amplitudes\n");
    EXPECT_EQ(">>> >>> >>> >>> ('ramp',)\n>>> ", talk.out);
    EXPECT_EQ("vdbattr: warning: model.amplitudes['ramp']: kamC:12 The Time-Amplitude table should have at "
              "least two rows of data.\n"
              "vdbattr: warning: column 58: expected \",\", found the end of the line\n"
              "  model.TabularAmplitude(name='ramp', data=((0, 0), (1, 1))\n"
              "                                                           ^\n",
              talk.err);
}

TEST(Editing, AScriptStopsAtTheLineThatIsRefused)
{
    LibraryEnvironment::Require();
    cmd_Session session;
    std::istringstream script("model.DecayAmplitude(name='a')\nmodel.DecayAmplitude()\nmodel.undo()\n");
    try
    {
        app_RunScript(session, script, "script.py");
        FAIL();
    }
    catch (const cmd_Error& error)
    {
        EXPECT_THAT(error.what(), HasSubstr("script.py:2: kamC_Decay: the argument name is missing"));
    }
    EXPECT_EQ("model.DecayAmplitude(name='a')", session.NextUndo()->line);
}

} // namespace
