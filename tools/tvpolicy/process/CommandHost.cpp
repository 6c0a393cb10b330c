#include "process/CommandHost.h"

#include <csignal>
#include <sstream>

#include "io/StopSignals.h"

namespace tvpolicy::cli {

namespace {

std::string secondsText(std::chrono::milliseconds duration)
{
    std::ostringstream text;
    text << static_cast<double>(duration.count()) / 1000.0 << " s";
    return text.str();
}

// Passes a stop signal that ended a command on to the handler from before the command, or ends
// the program by default when it was ignored (as it is for a background job).
void passOn(int signal)
{
    struct sigaction before {};
    ::sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_IGN) {
        ::signal(signal, SIG_DFL);
    }
    ::raise(signal);
}

}  // namespace

CommandGroups::Outcome CommandHost::perform(const std::string& command, bool readOutput)
{
    CommandGroups::Outcome outcome;
    if (stops_ == Stops::endProgram) {
        int signal = 0;
        {
            StopSignals stop;
            outcome = commands_.run(command, readOutput, CommandGroups::defaultKeep, stop.wakeDescriptor());
            signal = stop.signalNumber();
        }
        if (signal != 0) {
            passOn(signal);
        }
    } else {
        outcome = commands_.run(command, readOutput, CommandGroups::defaultKeep,
                                stops_ == Stops::endCommand ? stopDescriptor_ : -1);
    }
    if (outcome.ending == CommandGroups::Ending::timedOut) {
        std::lock_guard<std::mutex> lock(mutex_);
        timeouts_.push_back({command, "the command did not finish within " + secondsText(commands_.timeout()) +
                                          " (--command-timeout); it and its process group were ended"});
    }
    return outcome;
}

std::string CommandHost::commandOutput(const std::string& command, unsigned long)
{
    // The piece size of a pipe read with fgets does not matter here: the output is read whole.
    CommandGroups::Outcome outcome = perform(command, true);
    return outcome.ending == CommandGroups::Ending::finished ? outcome.output : std::string();
}

int CommandHost::runShellCommand(const std::string& command)
{
    CommandGroups::Outcome outcome = perform(command, false);
    return outcome.ending == CommandGroups::Ending::finished ? outcome.waitStatus : 0;
}

std::vector<CommandTimeout> CommandHost::timeouts() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return timeouts_;
}

std::size_t CommandHost::timeoutCount() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return timeouts_.size();
}

}  // namespace tvpolicy::cli
