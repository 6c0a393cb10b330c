#pragma once

#include <chrono>
#include <map>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/ForwardingHostProbe.h>

namespace tvpolicy::cli {

/// This computer, as `inner` probes it, except that a command whose output a check reads (a
/// VersionFromScript script) runs in a process group of its own, with standard input from
/// /dev/null, for at most `timeout`. A command still running then, or when SIGINT or SIGTERM
/// arrives, is ended with its whole group (TERM, then KILL a second later), so that no shell or
/// child of it is left behind; the signal then goes on to the handler that was in place before
/// the command (the program ends by it).
class BoundedCommandHost : public tvpolicy::ForwardingHostProbe {
public:
    BoundedCommandHost(tvpolicy::HostProbe& inner, std::chrono::milliseconds timeout);

    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;

    /// Adds a "cause" to every VersionFromScript check of `report` whose script timed out.
    void explainTimeouts(nlohmann::ordered_json& report) const;

private:
    std::chrono::milliseconds timeout_;
    std::map<std::string, std::string> timedOut_;  // command -> why it gave no output
};

}  // namespace tvpolicy::cli
