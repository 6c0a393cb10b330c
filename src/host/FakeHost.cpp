#include <tvpolicy/host/FakeHost.h>

namespace tvpolicy {

std::string FakeHost::systemPath(const std::string& path) const
{
    const std::pair<const std::string, std::string>* best = nullptr;
    for (const auto& mapping : pathMap) {
        if (path.compare(0, mapping.first.size(), mapping.first) == 0 &&
            (best == nullptr || mapping.first.size() > best->first.size())) {
            best = &mapping;
        }
    }
    return best == nullptr ? path : best->second + path.substr(best->first.size());
}

std::string FakeHost::osProductVersion() const { return productVersion; }

std::string FakeHost::osProductName() const { return productName; }

std::string FakeHost::nodeName() const { return node; }

std::string FakeHost::machineArchitecture() const { return architecture; }

HostProbe::HardwareIdentity FakeHost::hardwareIdentity() const { return hardware; }

std::vector<HostProbe::ProcessEntry> FakeHost::processTable() const { return processes; }

std::string FakeHost::dnsFlushCommand() const { return flushCommand; }

std::string FakeHost::commandOutput(const std::string& command, unsigned long)
{
    commandsRun.push_back(command);
    auto found = commandOutputs.find(command);
    return found != commandOutputs.end() ? found->second : std::string();
}

int FakeHost::runShellCommand(const std::string& command)
{
    commandsRun.push_back(command);
    return commandStatus;
}

void FakeHost::openURL(const std::string& url) { openedURLs.push_back(url); }

HostProbe::ApplicationListing FakeHost::applicationListing() const { return applications; }

}  // namespace tvpolicy
