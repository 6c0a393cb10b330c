#pragma once

#include <chrono>
#include <map>
#include <string>

#include <nlohmann/json.hpp>

#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy::cli {

/// This computer, as `inner` probes it, except that a command whose output a check reads (a
/// VersionFromScript script) runs in a process group of its own, with standard input from
/// /dev/null, for at most `timeout`. A command still running then, or when SIGINT or SIGTERM
/// arrives, is ended with its whole group (TERM, then KILL a second later), so that no shell or
/// child of it is left behind; the signal then goes on to the handler that was in place before
/// the command (the program ends by it).
class BoundedCommandHost : public tvpolicy::HostProbe {
public:
    BoundedCommandHost(tvpolicy::HostProbe& inner, std::chrono::milliseconds timeout);

    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;

    /// Adds a "cause" to every VersionFromScript check of `report` whose script timed out.
    void explainTimeouts(nlohmann::ordered_json& report) const;

    std::string systemPath(const std::string& path) const override { return inner_.systemPath(path); }
    std::string osProductVersion() const override { return inner_.osProductVersion(); }
    std::string osProductName() const override { return inner_.osProductName(); }
    std::string nodeName() const override { return inner_.nodeName(); }
    std::string machineArchitecture() const override { return inner_.machineArchitecture(); }
    HardwareIdentity hardwareIdentity() const override { return inner_.hardwareIdentity(); }
    std::vector<ProcessEntry> processTable() const override { return inner_.processTable(); }
    std::string dnsFlushCommand() const override { return inner_.dnsFlushCommand(); }
    int runShellCommand(const std::string& command) override { return inner_.runShellCommand(command); }
    void openURL(const std::string& url) override { inner_.openURL(url); }
    std::vector<unsigned char> dnsQuery(const std::string& name, int type,
                                        const std::optional<NameServer>& server) const override
    {
        return inner_.dnsQuery(name, type, server);
    }
    std::string dnsDefaultDomain() const override { return inner_.dnsDefaultDomain(); }
    ApplicationListing applicationListing() const override { return inner_.applicationListing(); }

private:
    tvpolicy::HostProbe& inner_;
    std::chrono::milliseconds timeout_;
    std::map<std::string, std::string> timedOut_;  // command -> why it gave no output
};

}  // namespace tvpolicy::cli
