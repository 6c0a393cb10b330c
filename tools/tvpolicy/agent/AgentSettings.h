#pragma once

#include <chrono>
#include <map>
#include <optional>
#include <string>
#include <vector>

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

/// Reads the TOML file `path` into `settings`. False with `error` set (naming the key for an
/// unknown key or a wrong type) when it cannot be used; a missing file is an error only when
/// `mustExist`. A file holding login values that others may read is refused.
bool loadSettings(const std::string& path, bool mustExist, AgentSettings& settings, std::string& error);

}  // namespace tvpolicy::cli::agent
