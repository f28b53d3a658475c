#pragma once

#include "cmd_Path.h"
#include "cmd_Value.h"

/// One line of a script.
struct OVR_EXPORT cmd_Statement
{
    enum class Sort
    {
        Empty,      ///< blank, or a comment
        Value,      ///< "PATH"
        Call,       ///< "PATH.word(arguments)"
        Assignment, ///< "PATH.word = value"
        Deletion    ///< "del PATH"
    };

    Sort sort = Sort::Empty;
    cmd_Path path;
    /// Of a call: the word called; of an assignment: the word of the attribute.
    std::string word;
    cmd_Arguments arguments;
    cmd_Value value;
};

/// Reads one line of Python as far as commands use it. Throws `cmd_Error`, which tells the column of the
/// fault.
OVR_EXPORT cmd_Statement cmd_ParseStatement(const std::string& line);

/// Reads a path; "model." before it may be left out. Throws as above.
OVR_EXPORT cmd_Path cmd_ParsePath(const std::string& text);

/// Reads a value. Throws as above.
OVR_EXPORT cmd_Value cmd_ParseValue(const std::string& text);
