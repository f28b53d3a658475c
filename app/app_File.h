#pragma once

#include <string>

struct cmd_Place;

/// The content of a file, or its first `limit` bytes. Throws `app_Error`.
std::string app_ReadFile(const std::string& path, std::size_t limit = std::string::npos);

/// Puts `content` in place of a file, which holds the old content or the new at any time. Throws `app_Error`.
void app_WriteFile(const std::string& path, const std::string& content);

/// Adds lines to the end of a file, behind a line feed if its last line has none, and makes the file if there
/// is none. Throws `app_Error`.
void app_AppendLines(const std::string& path, const std::string& lines);

/// Writes to standard output. Throws `app_Error` if it cannot be written.
void app_Print(const std::string& text);
/// The same, and sees to it that the text is out.
void app_PrintNow(const std::string& text);
/// Writes one line of warning to standard error, and the place below it, marked, if it is given.
void app_Warn(const std::string& text, const cmd_Place* place = nullptr);

/// Whether there is something at this path.
bool app_Exists(const std::string& path);

/// Whether two paths lead to one file that is there.
bool app_IsSameFile(const std::string& a, const std::string& b);
