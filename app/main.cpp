#include "QRTBasException.h"
#include "QRTVdbAttrEO2.h"
#include "app_Commands.h"
#include "app_Error.h"
#include "app_File.h"
#include "cls_Value.h"

#include <cstdio>
#include <new>

namespace
{

constexpr const char* about =
    "Makes, imports, exports, shows, edits, compares and checks stored models of attributes.\n"
    "\n"
    "A stored model is one file. Objects in it go by paths such as amplitudes['ramp'], and their attributes\n"
    "by words; `vdbattr catalog` lists all there are. Exit codes: 0 fine, 1 a rule is broken or models\n"
    "differ, 2 input or command that cannot be used.";

constexpr const char* farewell = "`vdbattr COMMAND --help` tells more of a command.";

int Fail(const std::string& message, app_ExitCode exitCode = app_Unusable)
{
    std::fprintf(stderr, "vdbattr: %s\n", app_OnOneLine(message).c_str());
    return exitCode;
}

bool HasCommand(CLI::App& parser, const std::string& name)
{
    return !parser.get_subcommands([&name](CLI::App* command) { return command->get_name() == name; })
                .empty();
}

int Run(int argc, char** argv)
{
    CLI::App parser(about, "vdbattr");
    parser.footer(farewell);
    parser.set_version_flag("--version", "vdbattr " VDBATTR_VERSION, "Print the program's version and end");
    parser.require_subcommand(1);
    int exitCode = app_Fine;
    app_AddCommands(parser, exitCode);
    if (argc > 1 && argv[1][0] != '-' && !HasCommand(parser, argv[1]))
        return Fail(std::string("there is no command ") + argv[1] + "; `vdbattr --help` lists them");
    try
    {
        parser.parse(argc, argv);
    }
    catch (const CLI::Success& help)
    {
        return parser.exit(help);
    }
    catch (const CLI::ParseError& error)
    {
        return Fail(std::string(error.what()) + " (`vdbattr --help` and `vdbattr COMMAND --help` tell more)");
    }
    app_PrintNow("");
    return exitCode;
}

/// The library, up for as long as this lives.
class Library
{
public:
    Library() { QRTVdbAttrEO2_initialize(tally); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
    ~Library() { QRTVdbAttrEO2_finalize(tally); }

private:
    int tally = 0;
};

} // namespace

int main(int argc, char** argv)
{
    try
    {
        const Library library;
        return Run(argc, argv);
    }
    catch (const app_RuleError& error)
    {
        return Fail(error.what(), app_Findings);
    }
    catch (const std::bad_alloc&)
    {
        return Fail("out of memory");
    }
    catch (const std::exception& error)
    {
        return Fail(error.what());
    }
}
