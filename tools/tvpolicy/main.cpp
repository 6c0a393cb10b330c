#include <iostream>
#include <map>
#include <string>

#include <CLI/CLI.hpp>

#include <tvpolicy/version.h>

#include "Command.h"
#include "Console.h"

int main(int argc, char** argv)
{
    CLI::App app{"tvpolicy - prove that this computer complies with a network-access policy"};
    app.name("tvpolicy");
    app.set_version_flag("--version", std::string("tvpolicy ") + TVPOLICY_VERSION);
    app.require_subcommand(1);

    bool verbose = false;
    std::string logFile;
    app.add_flag("-v,--verbose", verbose, "Show the library's own log lines on standard error");
    app.add_option("--log", logFile, "Append the library's own log lines to FILE")->option_text("FILE");

    std::map<CLI::App*, cli::CommandAction> actions;
    for (const cli::Command& command : cli::registeredCommands()) {
        CLI::App* sub = app.add_subcommand(command.name, command.description);
        actions[sub] = command.setup(*sub);
    }

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0 && !app.remaining().empty()) {
            std::cerr << "tvpolicy: unknown command or argument '" << app.remaining().front()
                      << "'\nRun with --help for more information.\n";
            return cli::exitUsage;
        }
        // Help and version exit 0; every usage error exits 2, like an unreadable policy.
        return app.exit(error) == 0 ? cli::exitPassed : cli::exitUsage;
    }

    cli::Console console;
    if (!logFile.empty()) {
        std::string error;
        if (!console.logLibraryOutputTo(logFile, error)) {
            console.err() << "tvpolicy: " << error << '\n';
            return cli::exitUsage;
        }
    } else if (verbose) {
        console.showLibraryOutput();
    } else {
        console.hideLibraryOutput();
    }

    for (CLI::App* sub : app.get_subcommands()) {
        try {
            return actions.at(sub)(console);
        } catch (const std::exception& error) {
            console.err() << "tvpolicy " << sub->get_name() << ": " << error.what() << '\n';
            return cli::exitUsage;
        }
    }
    return cli::exitUsage;
}
