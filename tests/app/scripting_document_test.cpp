#include "DocumentBlocks.h"
#include "Program.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace
{

std::string Quoted(const std::string& text)
{
    std::string quoted = "'";
    for (const char c : text)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + '\'';
}

/// A shell script that types the commands, each shown before what it answers.
std::string ScriptOf(const std::vector<std::string>& commands, const std::string& folder)
{
    std::string script = "cd " + Quoted(folder) + " || exit\nvdbattr() { '" OVR_PROGRAM "' \"$@\"; }\n";
    for (const std::string& command : commands)
        script += "code=$?; printf '%s\\n' " + Quoted("$ " + command) + "; (exit $code)\n" + command + '\n';
    return script;
}

TEST(ScriptingDocument, ItsCommandsDoWhatTheySay)
{
    const std::vector<std::string> lines = LinesOfBlocks(OVR_SOURCE_DIR "/docs/scripting.md", "console");
    std::vector<std::string> commands;
    for (const std::string& line : lines)
    {
        if (line.rfind("$ ", 0) == 0)
            commands.push_back(line.substr(2));
    }
    ASSERT_GT(commands.size(), 15u);
    const ScratchFolder folder;
    const std::string script = folder.Write("typed.sh", ScriptOf(commands, folder.Path("")));
    const std::string out = folder.Path("typed.out");
    std::system(("sh " + Quoted(script) + " > " + Quoted(out) + " 2>&1").c_str());
    EXPECT_EQ(JoinedLines(lines), ContentOf(out));
}

} // namespace
