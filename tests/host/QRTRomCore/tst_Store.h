#pragma once

#include "tst_Classes.h"

#include <filesystem>
#include <string>

/// A folder of its own for one test, gone when the test ends.
class tst_Folder
{
public:
    tst_Folder();
    tst_Folder(const tst_Folder&) = delete;
    tst_Folder& operator=(const tst_Folder&) = delete;
    ~tst_Folder();

    std::string operator/(const char* name) const { return (path / name).string(); }
    /// Names of all files, sorted, with a blank between them.
    std::string Names() const;

private:
    std::filesystem::path path;
};

/// Writes a part as the root "model".
void tst_Save(const std::string& path, const tst_Part& part);
/// Reads the root "model".
tst_Part::Handle tst_Load(const std::string& path);
/// Runs statements on a file by plain SQLite.
void tst_Execute(const std::string& path, const std::string& sql);
/// First value of the first row of a query, as text.
std::string tst_Query(const std::string& path, const std::string& sql);

std::string tst_ReadFile(const std::string& path);
void tst_WriteFile(const std::string& path, const std::string& content);
