#pragma once

#include <cstddef>
#include <mutex>
#include <string>
#include <vector>

#include <tvpolicy/host/ForwardingHostProbe.h>

#include "process/CommandGroups.h"

namespace tvpolicy::cli {

/// A command that ran past the time-out of its CommandGroups, and what a report says of it.
struct CommandTimeout {
    std::string command;
    std::string why;
};

/// This computer as `inner` probes it, except that the commands the library runs (a check's
/// script, a DNS cache flush, an address renewal through networkctl) go through `commands`: each
/// in a process group of its own that is ended whole. A command that was ended, timed out or
/// could not start prints nothing and has status 0, as one whose shell did not start.
///
/// What ends a command besides CommandGroups::end() and its time-out:
/// - Stops::none: nothing (the agent, which calls end() from the thread that sees a stop);
/// - Stops::endProgram: SIGINT or SIGTERM during the command ends its group, then goes on to the
///   handler that was in place before the command, or ends the program by default (also when it
///   was ignored: a signal that ended the command ends the program too);
/// - Stops::endCommand: a readable `stopDescriptor` (a StopSignals' wake descriptor that the
///   caller watches) ends the command; the caller sees the stop itself.
class CommandHost : public tvpolicy::ForwardingHostProbe {
public:
    enum class Stops { none, endProgram, endCommand };

    CommandHost(tvpolicy::HostProbe& inner, CommandGroups& commands, Stops stops = Stops::none, int stopDescriptor = -1)
        : ForwardingHostProbe(inner),
          commands_(commands),
          stops_(stops),
          stopDescriptor_(stopDescriptor)
    {
    }

    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    int runShellCommand(const std::string& command) override;

    /// The commands that timed out so far, in the order they ran.
    std::vector<CommandTimeout> timeouts() const;
    std::size_t timeoutCount() const;

private:
    CommandGroups::Outcome perform(const std::string& command, bool readOutput);

    CommandGroups& commands_;
    Stops stops_;
    int stopDescriptor_;
    mutable std::mutex mutex_;
    std::vector<CommandTimeout> timeouts_;
};

}  // namespace tvpolicy::cli
