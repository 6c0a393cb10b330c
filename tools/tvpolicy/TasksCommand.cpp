#include <tvpolicy/policy/TaskFactory.h>

#include "Command.h"

namespace {

cli::CommandAction setupTasks(CLI::App&)
{
    return [](cli::Console& console) {
        cli::Console::LibraryStdout show(console);
        TaskFactory::dump();
        return cli::exitPassed;
    };
}

const bool registered = cli::registerCommand(
    {"tasks", "List the check kinds that a policy can use, in registration order", 90, &setupTasks});

}  // namespace
