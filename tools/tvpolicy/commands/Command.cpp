#include "commands/Command.h"

#include <algorithm>

namespace tvpolicy::cli {

namespace {

std::vector<Command>& registry()
{
    static std::vector<Command> commands;
    return commands;
}

}  // namespace

bool registerCommand(Command command)
{
    registry().push_back(std::move(command));
    return true;
}

std::vector<Command> registeredCommands()
{
    std::vector<Command> commands = registry();
    std::stable_sort(commands.begin(), commands.end(),
                     [](const Command& a, const Command& b) { return a.order < b.order; });
    return commands;
}

void addCommandTimeout(CLI::App& app, double& seconds)
{
    app.add_option("--command-timeout", seconds,
                   "End a command that a check runs (VersionFromScript), with its process group, after S seconds; "
                   "the check then fails saying so")
        ->option_text("S")
        ->capture_default_str()
        ->check(CLI::Range(0.001, 86400.0));
}

std::chrono::milliseconds commandTimeout(double seconds)
{
    return std::chrono::milliseconds(static_cast<long long>(seconds * 1000));
}

}  // namespace tvpolicy::cli
