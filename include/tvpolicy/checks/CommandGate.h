#pragma once

#include <functional>
#include <string>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// Decides whether a shell command that a policy names (a `VersionFromScript` script) may run on
/// this computer: empty to let it run, else why not, which becomes the failed check's message.
/// A program that evaluates policies it did not write (the agent) sets one; by default every
/// command runs.
using CommandGate = std::function<std::string(const std::string& command)>;

/// Sets the gate for the whole process; an empty function lets every command run again.
TVPOLICY_API void setCommandGate(CommandGate gate);
/// Why `command` may not run, or empty when it may.
TVPOLICY_API std::string commandRefusal(const std::string& command);

}  // namespace tvpolicy
