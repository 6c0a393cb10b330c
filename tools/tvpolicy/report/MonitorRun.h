#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace com::torvane::policy {
class Monitor;
}

namespace tvpolicy::cli {

class CommandHost;

/// What one check of a monitor found in one run.
struct MonitorCheck {
    std::string kind;  // the element's name (ProcessExists)
    bool passed = false;
    std::string message;
    std::string cause;  // why it failed when its message does not say (a command that timed out)
};

/// One run of a monitor, with what each performed check found. The monitor's tasks are
/// performed here as the agent performs them (in order, up to the first that fails; prohibit
/// inverts the outcome; the next run is one period later), because the library's run keeps
/// only the status.
struct MonitorRun {
    std::string id;
    bool prohibit = false;
    bool compliant = false;
    std::chrono::system_clock::time_point when;
    std::vector<MonitorCheck> checks;

    /// The status line the agent reports: <monitor><id>ID</id><status>true</status></monitor>
    std::string statusXml() const;
    /// Why a run reported false, in words; empty when it reported true.
    std::string why() const;
    /// One JSON line: time, id, status, prohibit, the checks and why.
    nlohmann::ordered_json toJson() const;
};

/// `commands`, when given, is the host the checks' commands run through: a check during which one
/// timed out gets that as its cause.
MonitorRun performMonitor(com::torvane::policy::Monitor& monitor, const CommandHost* commands = nullptr);

}  // namespace tvpolicy::cli
