#include "agent/AgentHost.h"

namespace tvpolicy::cli::agent {

std::string AgentHost::commandOutput(const std::string& command, unsigned long)
{
    // The piece size of a pipe read with fgets does not matter here: the output is read whole.
    return commands_.output(command).value_or(std::string());
}

int AgentHost::runShellCommand(const std::string& command) { return commands_.status(command).value_or(0); }

}  // namespace tvpolicy::cli::agent
