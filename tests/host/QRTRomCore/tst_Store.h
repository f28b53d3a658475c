#pragma once

#include "TemporaryFolder.h"
#include "tst_Classes.h"

using tst_Folder = TemporaryFolder;

/// Writes a part as the root "model".
void tst_Save(const std::string& path, const tst_Part& part);
/// Reads the root "model".
tst_Part::Handle tst_Load(const std::string& path);
/// Runs statements on a file by plain SQLite.
void tst_Execute(const std::string& path, const std::string& sql);
/// First value of the first row of a query, as text.
std::string tst_Query(const std::string& path, const std::string& sql);
/// All rows of a query, as text that is equal for equal values only.
std::string tst_QueryAll(const std::string& path, const std::string& sql);

std::string tst_ReadFile(const std::string& path);
void tst_WriteFile(const std::string& path, const std::string& content);
