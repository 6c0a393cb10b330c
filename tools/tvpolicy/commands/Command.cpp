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

}  // namespace tvpolicy::cli
