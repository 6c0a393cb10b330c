#include "commands/Command.h"

#include <algorithm>
#include <map>

namespace tvpolicy::cli {

namespace {

std::vector<Command>& registry()
{
    static std::vector<Command> commands;
    return commands;
}

// A subcommand that addCommands added: how to set it up, and its action once it is.
struct Added {
    std::function<CommandAction(CLI::App& app)> setup;
    CommandAction action;
};

std::map<const CLI::App*, Added>& added()
{
    static std::map<const CLI::App*, Added> subcommands;
    return subcommands;
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

void addCommands(CLI::App& root)
{
    for (Command& command : registeredCommands()) {
        CLI::App* sub = root.add_subcommand(command.name, command.description);
        if (command.hidden) {
            sub->group("");
        }
        added()[sub].setup = std::move(command.setup);
        // Called as the parse reaches the subcommand, before any of its arguments.
        sub->preparse_callback([sub](std::size_t) { actionOf(*sub); });
    }
}

const CommandAction& actionOf(CLI::App& sub)
{
    Added& entry = added().at(&sub);
    if (entry.setup) {
        entry.action = entry.setup(sub);
        entry.setup = nullptr;
    }
    return entry.action;
}

void setUpEveryCommand(CLI::App& root)
{
    for (CLI::App* sub : root.get_subcommands({})) {
        if (added().count(sub) != 0) {
            actionOf(*sub);
        }
    }
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
