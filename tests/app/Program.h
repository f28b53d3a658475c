#pragma once

#include <string>
#include <vector>

/// What the program answered.
struct Answer
{
    int exitCode; ///< 128 and the signal's number if a signal ended it.
    std::string out;
    std::string err;
};

/// Runs vdbattr with these arguments, and `input` as its standard input.
Answer RunProgram(const std::vector<std::string>& arguments, const std::string& input = "");

/// Runs vdbattr and kills it after a moment, if it has not ended by then.
void KillProgram(const std::vector<std::string>& arguments, int milliseconds);

/// A folder for one test, gone when the test ends.
class ScratchFolder
{
public:
    ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder();

    /// Path of a file in it.
    std::string Path(const std::string& name) const { return folder + '/' + name; }

    /// Makes a file in it; its path.
    std::string Write(const std::string& name, const std::string& content) const;

private:
    std::string folder;
};

/// Runs SQL on a store, as a hand with the sqlite3 program would. An UPDATE must change something.
void RunSql(const std::string& store, const std::string& sql);

/// The content of a file.
std::string ContentOf(const std::string& path);

/// Path of an example.
std::string Example(const std::string& name);
