#include "DocumentBlocks.h"
#include "LibraryEnvironment.h"
#include "cmd_Script.h"

#include <gtest/gtest.h>

namespace
{

std::vector<std::string> LinesOf(const std::string& language)
{
    return LinesOfBlocks(OVR_SOURCE_DIR "/docs/scripting.md", language);
}

std::string Answer(cmd_Session& session, const std::string& command)
{
    try
    {
        return cmd_Run(session, command);
    }
    catch (const std::exception& exception)
    {
        return std::string("error: ") + exception.what();
    }
}

TEST(ScriptingDocument, ItsExamplesDoWhatTheySay)
{
    cmd_Session session;
    std::vector<std::string> journal;
    session.SetJournal([&journal](const std::string& line) { journal.push_back(line); });
    const std::string prompt = ">>> ";
    std::vector<std::string> transcript;
    const std::vector<std::string> lines = LinesOf("python");
    for (const std::string& line : lines)
    {
        if (line.rfind(prompt, 0) != 0)
            continue;
        transcript.push_back(line);
        const std::string answer = Answer(session, line.substr(prompt.size()));
        if (!answer.empty())
            transcript.push_back(answer);
    }
    EXPECT_GT(lines.size(), 50u);
    EXPECT_EQ(JoinedLines(lines), JoinedLines(transcript));
    EXPECT_EQ(JoinedLines(LinesOf("journal")), JoinedLines(journal));
}

} // namespace
