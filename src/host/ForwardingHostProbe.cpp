#include <tvpolicy/host/ForwardingHostProbe.h>

namespace tvpolicy {

std::string ForwardingHostProbe::systemPath(const std::string& path) const { return inner_.systemPath(path); }

std::string ForwardingHostProbe::osProductVersion() const { return inner_.osProductVersion(); }

std::string ForwardingHostProbe::osProductName() const { return inner_.osProductName(); }

std::string ForwardingHostProbe::nodeName() const { return inner_.nodeName(); }

std::string ForwardingHostProbe::machineArchitecture() const { return inner_.machineArchitecture(); }

HostProbe::HardwareIdentity ForwardingHostProbe::hardwareIdentity() const { return inner_.hardwareIdentity(); }

std::vector<HostProbe::ProcessEntry> ForwardingHostProbe::processTable() const { return inner_.processTable(); }

std::string ForwardingHostProbe::dnsFlushCommand() const { return inner_.dnsFlushCommand(); }

std::string ForwardingHostProbe::commandOutput(const std::string& command, unsigned long bufferSize)
{
    return inner_.commandOutput(command, bufferSize);
}

int ForwardingHostProbe::runShellCommand(const std::string& command) { return inner_.runShellCommand(command); }

void ForwardingHostProbe::openURL(const std::string& url) { inner_.openURL(url); }

Result<std::vector<unsigned char>> ForwardingHostProbe::dnsQuery(const std::string& name, int type,
                                                                 const std::optional<NameServer>& server) const
{
    return inner_.dnsQuery(name, type, server);
}

std::string ForwardingHostProbe::dnsDefaultDomain() const { return inner_.dnsDefaultDomain(); }

HostProbe::ApplicationListing ForwardingHostProbe::applicationListing() const { return inner_.applicationListing(); }

}  // namespace tvpolicy
