#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

/// A folder of its own for one test, gone when the test ends. In memory where there is such a place: tests of
/// stores sync often.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        const std::filesystem::path memory = "/dev/shm";
        const std::filesystem::path parent =
            std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
        std::string pattern = (parent / "ovr-test-XXXXXX").string();
        if (!mkdtemp(pattern.data()))
            throw std::runtime_error("no folder for the test");
        path = pattern;
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }

    std::string operator/(const std::string& name) const { return (path / name).string(); }

    /// Names of all files, sorted, with a blank between them.
    std::string Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(path))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        std::string text;
        for (const std::string& name : names)
            text += (text.empty() ? "" : " ") + name;
        return text;
    }

private:
    std::filesystem::path path;
};
