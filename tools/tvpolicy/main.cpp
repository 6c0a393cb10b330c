#include <iostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include <tvpolicy/checks/PostureTasks.h>
#include <tvpolicy/version.h>

#include "commands/Command.h"
#include "io/Console.h"
#include "policy/UnreadElements.h"

namespace cli = tvpolicy::cli;

int main(int argc, char** argv)
{
    // Policies for Linux fleets use the posture checks; the CLI knows them all.
    tvpolicy::registerPostureTasks();

    CLI::App app{"tvpolicy - prove that this computer complies with a network-access policy"};
    app.name("tvpolicy");
    app.set_version_flag("--version", std::string("tvpolicy ") + TVPOLICY_VERSION);
    app.require_subcommand(1);

    // Global options are taken after the subcommand too: tvpolicy run x.xml -v
    app.fallthrough();

    bool verbose = false;
    std::string logFile;
    CLI::Option* verboseFlag =
        app.add_flag("-v,--verbose", verbose, "Show the library's own log lines on standard error");
    app.add_option("--log", logFile, "Append the library's own log lines to FILE (instead of -v)")
        ->option_text("FILE")
        ->excludes(verboseFlag);

    cli::addCommands(app);

    // tvpolicy help [SUBCOMMAND]: the same text as --help.
    std::string helpTopic;
    CLI::App* help = app.add_subcommand("help", "Show the help of tvpolicy or of one subcommand");
    help->add_option("SUBCOMMAND", helpTopic, "The subcommand to explain");
    const cli::CommandAction explain = [&app, &helpTopic](cli::Console& console) {
        if (helpTopic.empty()) {
            // app.help() would describe the chosen subcommand, which is this one.
            console.out() << app.get_formatter()->make_help(&app, app.get_name(), CLI::AppFormatMode::Normal);
            return cli::exitPassed;
        }
        cli::setUpEveryCommand(app);  // their options, for the text
        for (CLI::App* sub : app.get_subcommands({})) {
            if (sub->get_name() == helpTopic) {
                console.out() << sub->help(app.get_name());  // "Usage: tvpolicy run ...", as run --help
                return cli::exitPassed;
            }
        }
        console.err() << "tvpolicy help: no subcommand '" << helpTopic << "'\nRun with --help for the list.\n";
        return cli::exitUsage;
    };

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        if (error.get_exit_code() != 0 && !app.remaining().empty()) {
            // A mistyped option is compared with the options of the chosen subcommand and the
            // global ones; any other word with the subcommands.
            std::vector<std::string> names;
            if (app.remaining().front().rfind('-', 0) == 0) {
                std::vector<CLI::App*> scopes = app.get_subcommands();
                scopes.push_back(&app);
                for (CLI::App* scope : scopes) {
                    for (const CLI::Option* known : scope->get_options()) {
                        for (const std::string& name : known->get_lnames()) {
                            names.push_back("--" + name);
                        }
                    }
                }
            } else {
                for (CLI::App* sub : app.get_subcommands({})) {
                    names.push_back(sub->get_name());
                }
            }
            std::string closest = cli::closestName(app.remaining().front(), names);
            std::cerr << "tvpolicy: unknown command or argument '" << app.remaining().front() << "'"
                      << (closest.empty() ? std::string() : " (did you mean '" + closest + "'?)")
                      << "\nRun with --help for more information.\n";
            return cli::exitUsage;
        }
        // Help and version exit 0; every usage error exits 2, like an unreadable policy.
        return app.exit(error) == 0 ? cli::exitPassed : cli::exitUsage;
    }

    cli::Console console;
    if (!logFile.empty()) {
        if (auto logging = console.logLibraryOutputTo(logFile); !logging) {
            console.err() << "tvpolicy: " << logging.error() << '\n';
            return cli::exitUsage;
        }
    } else if (verbose) {
        console.showLibraryOutput();
    } else {
        console.hideLibraryOutput();
    }

    for (CLI::App* sub : app.get_subcommands()) {
        int status = cli::exitUsage;
        try {
            status = sub == help ? explain(console) : cli::actionOf(*sub)(console);
        } catch (const std::exception& error) {
            console.err() << "tvpolicy " << sub->get_name() << ": " << error.what() << '\n';
            return cli::exitUsage;
        }
        // Results that did not reach standard output (a full disk, a closed stream) are lost:
        // that is never a success.
        if (auto delivered = console.outDelivered(); !delivered) {
            console.err() << "tvpolicy " << sub->get_name()
                          << ": cannot write to standard output: " << delivered.error() << '\n'
                          << std::flush;
            return cli::exitUsage;
        }
        return status;
    }
    return cli::exitUsage;
}
