#include "QRTBasException.h"
#include "QRTVdbAttrEO2.h"
#include "app_Commands.h"
#include "app_Error.h"
#include "app_File.h"
#include "cls_Value.h"
#include "cmd_Error.h"
#include "cmd_Rules.h"
#include "rom_StoreException.h"

#include <algorithm>
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

int Fail(const std::string& message, app_ExitCode exitCode = app_Unusable, const cmd_Place* place = nullptr)
{
    std::fprintf(stderr, "vdbattr: %s\n", app_Message(message, place).c_str());
    return exitCode;
}

std::vector<std::string> CommandsOf(CLI::App& parser)
{
    std::vector<std::string> names;
    for (const CLI::App* command : parser.get_subcommands([](CLI::App*) { return true; }))
        names.push_back(command->get_name());
    return names;
}

int Run(int argc, char** argv)
{
    CLI::App parser(about, "vdbattr");
    parser.footer(farewell);
    parser.set_version_flag("--version", "vdbattr " VDBATTR_VERSION, "Print the program's version and end");
    parser.require_subcommand(1);
    int exitCode = app_Fine;
    app_AddCommands(parser, exitCode);
    const std::vector<std::string> commands = CommandsOf(parser);
    const bool isOption = argc < 2 || argv[1][0] == '-';
    if (!isOption && std::find(commands.begin(), commands.end(), argv[1]) == commands.end())
        return Fail(std::string("there is no command ") + argv[1] + ", " +
                    cmd_ExpectedOneOf(argv[1], commands));
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
    catch (const cmd_RuleError& error)
    {
        return Fail(error.what(), app_Findings);
    }
    catch (const cmd_Error& error)
    {
        return Fail(error.what(), app_Unusable, error.Place());
    }
    catch (const rom_OldStoreException& error)
    {
        return Fail(std::string(error.what()) +
                    " `vdbattr upgrade OLD NEW` makes a store of this release of it.");
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
