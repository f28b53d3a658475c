#include "Program.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// In the child: puts a file in place of one of the standard streams.
void Redirect(const std::string& path, int flags, int stream)
{
    const int file = ::open(path.c_str(), flags, 0600);
    if (file < 0 || ::dup2(file, stream) < 0)
        ::_exit(126);
}

[[noreturn]] void BecomeProgram(std::vector<char*> arguments, const ScratchFolder& folder)
{
    Redirect(folder.Path("in"), O_RDONLY, STDIN_FILENO);
    Redirect(folder.Path("out"), O_WRONLY | O_CREAT, STDOUT_FILENO);
    Redirect(folder.Path("err"), O_WRONLY | O_CREAT, STDERR_FILENO);
    ::execv(OVR_PROGRAM, arguments.data());
    ::_exit(127);
}

/// Starts the program, with its standard streams in the folder; its process.
pid_t StartProgram(const std::vector<std::string>& arguments, const ScratchFolder& folder)
{
    std::vector<std::string> all{"vdbattr"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    std::vector<char*> pointers;
    for (std::string& argument : all)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0)
        BecomeProgram(pointers, folder);
    return child;
}

int ExitCodeOf(pid_t child)
{
    int status = 0;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

Answer RunProgram(const std::vector<std::string>& arguments, const std::string& input)
{
    const ScratchFolder folder;
    folder.Write("in", input);
    const int exitCode = ExitCodeOf(StartProgram(arguments, folder));
    return {exitCode, ContentOf(folder.Path("out")), ContentOf(folder.Path("err"))};
}

void KillProgram(const std::vector<std::string>& arguments, int milliseconds)
{
    const ScratchFolder folder;
    folder.Write("in", "");
    const pid_t child = StartProgram(arguments, folder);
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    ::kill(child, SIGKILL);
    ExitCodeOf(child);
}

ScratchFolder::ScratchFolder()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "vdbattr-XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        ADD_FAILURE() << "no folder can be made at " << pattern;
    folder = pattern;
}

ScratchFolder::~ScratchFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

std::string ScratchFolder::Write(const std::string& name, const std::string& content) const
{
    std::ofstream(Path(name), std::ios::binary) << content;
    return Path(name);
}

void RunSql(const std::string& store, const std::string& sql)
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(SQLITE_OK, sqlite3_open(store.c_str(), &connection));
    char* error = nullptr;
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, &error)) << error;
    EXPECT_GT(sqlite3_total_changes(connection) + (sql.find("UPDATE") == std::string::npos), 0) << sql;
    sqlite3_close(connection);
}

std::string ContentOf(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

std::string Example(const std::string& name)
{
    return OVR_SOURCE_DIR "/examples/" + name;
}
