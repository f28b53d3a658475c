#pragma once

#include <CLI/CLI.hpp>

/// Adds the program's commands to the parser. The one that is called leaves its exit code in `exitCode`,
/// which stays as it is if the command throws.
void app_AddCommands(CLI::App& parser, int& exitCode);
