#include "LibraryEnvironment.h"
#include "cmd_Script.h"

#include <gtest/gtest.h>

#include <fstream>

namespace
{

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

/// The lines of the document's blocks in this language, in order.
std::vector<std::string> LinesOf(const std::string& language)
{
    std::ifstream document(OVR_SOURCE_DIR "/docs/scripting.md");
    std::vector<std::string> lines;
    bool isInside = false;
    for (std::string line; std::getline(document, line);)
    {
        if (line.rfind("```", 0) == 0)
            isInside = !isInside && line == "```" + language;
        else if (isInside)
            lines.push_back(line);
    }
    return lines;
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
    EXPECT_EQ(Joined(lines), Joined(transcript));
    EXPECT_EQ(Joined(LinesOf("journal")), Joined(journal));
}

} // namespace
