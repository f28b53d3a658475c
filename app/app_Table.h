#pragma once

#include <string>
#include <vector>

/// Columns of text that line up, for people.
class app_Table
{
public:
    enum class Align
    {
        Left,
        Right
    };

    explicit app_Table(std::vector<Align> columns);

    void Add(std::vector<std::string> cells);

    /// The rows, each ended by a line feed and begun with `indent` blanks; columns that are empty throughout
    /// are left out.
    std::string Text(std::size_t indent) const;

private:
    std::vector<Align> columns;
    std::vector<std::vector<std::string>> rows;
};

/// Characters that a text of UTF-8 takes on a terminal.
std::size_t app_Width(const std::string& text);

/// "1 object", "2 objects".
std::string app_Count(long count, const std::string& noun);
/// The same where the plural is more than an added "s".
std::string app_Count(long count, const std::string& singular, const std::string& plural);
