#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/base/Result.h>

namespace tvpolicy::cli::agent {

/// Which commands named by a fetched policy may run: none (the default), an exact list, or any.
struct ScriptRule {
    bool any = false;
    std::vector<std::string> allowed;

    /// Empty when `command` may run, else why not (naming the command and the setting).
    std::string refusal(const std::string& command) const;
};

/// What the agent is told by its configuration file and command line; the command line wins.
struct AgentSettings {
    std::string server;
    std::string discover;
    std::string domain;
    std::chrono::milliseconds interval = std::chrono::hours(4);
    std::string stateDir = "/var/lib/tvpolicy";
    std::string cacert;
    bool allowHttp = false;
    ScriptRule scripts;
    /// Login field values by field name; never printed.
    std::map<std::string, std::string> login;
};

/// A duration as the configuration writes it: "90" or "90s", "15m", "4h", "1d", "250ms".
std::optional<std::chrono::milliseconds> parseDuration(const std::string& text);

/// The settings of the TOML file `path` over the defaults. A failure (naming the key for an
/// unknown key or a wrong type) when it cannot be used; a missing file is one only when
/// `mustExist`, else it gives the defaults. A file holding login values that others may read
/// is refused.
Result<AgentSettings> loadSettings(const std::string& path, bool mustExist);

}  // namespace tvpolicy::cli::agent
