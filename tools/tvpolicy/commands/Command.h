#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

#include "io/Console.h"

namespace tvpolicy::cli {

/// What a subcommand does once the command line is parsed; returns the exit status.
using CommandAction = std::function<int(Console&)>;

/// A subcommand of tvpolicy. Each lives in its own file and registers itself:
///
///     const bool registered = registerCommand({"tasks", "List ...", 10, &setupTasks});
///
/// `setup` adds the subcommand's options to `app` (already named and described) and returns
/// the action to run when the subcommand is chosen; the options are bound to state the action
/// shares.
struct Command {
    std::string name;
    std::string description;
    int order;  // position in --help
    std::function<CommandAction(CLI::App& app)> setup;
    bool hidden = false;  // left out of --help (its options are set up only when it runs)
};

bool registerCommand(Command command);
/// The registered subcommands, in --help order.
std::vector<Command> registeredCommands();

/// Adds every registered command to `root` as a subcommand, named and described. Its options
/// are added (and its action made) only when the command line names it, or when
/// `setUpEveryCommand` asks: a start would otherwise spend more on the options of commands
/// that do not run than on the one that does.
void addCommands(CLI::App& root);
/// The action of `sub`, one of the subcommands `addCommands` added, set up first if it is not.
const CommandAction& actionOf(CLI::App& sub);
/// Sets up every subcommand that `addCommands` added to `root`, for what shows them all.
void setUpEveryCommand(CLI::App& root);

/// Exit statuses shared by the subcommands.
/// 0 passed, 1 failed, 2 a usage error or a document that could not be read (or results that
/// could not be written), 3 a resource the document names could not be fetched.
enum ExitStatus { exitPassed = 0, exitFailed = 1, exitUsage = 2, exitUnfetched = 3 };

/// `--command-timeout S` (60 by default), shared by the subcommands that perform checks: how
/// long a command a check runs may take before it is ended with its process group.
void addCommandTimeout(CLI::App& app, double& seconds);
std::chrono::milliseconds commandTimeout(double seconds);

}  // namespace tvpolicy::cli
