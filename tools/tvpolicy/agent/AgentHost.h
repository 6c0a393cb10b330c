#pragma once

#include <tvpolicy/host/HostProbe.h>

#include "agent/CommandGroups.h"

namespace tvpolicy::cli::agent {

/// This computer as `inner` probes it, except that the commands the library runs (a check's
/// script, a DNS cache flush, an address renewal through networkctl) go through `commands`: each
/// in a process group of its own that a stop of the agent ends whole. A command that was ended
/// or could not start prints nothing and has status 0, as one whose shell did not start.
class AgentHost : public tvpolicy::HostProbe {
public:
    AgentHost(tvpolicy::HostProbe& inner, CommandGroups& commands) : inner_(inner), commands_(commands) {}

    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    int runShellCommand(const std::string& command) override;

    std::string systemPath(const std::string& path) const override { return inner_.systemPath(path); }
    std::string osProductVersion() const override { return inner_.osProductVersion(); }
    std::string osProductName() const override { return inner_.osProductName(); }
    std::string nodeName() const override { return inner_.nodeName(); }
    std::string machineArchitecture() const override { return inner_.machineArchitecture(); }
    HardwareIdentity hardwareIdentity() const override { return inner_.hardwareIdentity(); }
    std::vector<ProcessEntry> processTable() const override { return inner_.processTable(); }
    std::string dnsFlushCommand() const override { return inner_.dnsFlushCommand(); }
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
    CommandGroups& commands_;
};

}  // namespace tvpolicy::cli::agent
