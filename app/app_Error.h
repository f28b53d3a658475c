#pragma once

#include <stdexcept>
#include <string>

struct cmd_Place;

/// Input that cannot be used, or a command that cannot be carried out: one line for people, which names the
/// file, path or word at fault and what was expected. The program ends with `app_Unusable`.
class app_Error : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// What the program tells its caller when it ends.
enum app_ExitCode : int
{
    app_Fine = 0,
    app_Findings = 1, ///< A rule is broken, or two models differ.
    app_Unusable = 2  ///< Input that cannot be read, or a command line that cannot be understood.
};

/// The text with every line feed as a blank, for a place that has one line.
std::string app_OnOneLine(std::string text);

/// A message on one line, its middle left out if it is very long, and the place below it, marked, if it is
/// given.
std::string app_Message(const std::string& text, const cmd_Place* place = nullptr);
