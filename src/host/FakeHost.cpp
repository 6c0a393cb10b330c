#include <tvpolicy/host/FakeHost.h>

#include <filesystem>
#include <string>
#include <vector>

namespace tvpolicy {

namespace {

// `rest` of a mapped path with "." and ".." resolved by text alone, a ".." at the top going
// nowhere (as "/.." is "/"), so that no path leaves the folder its prefix maps to. A leading
// and a trailing "/" are kept; repeated ones collapse.
std::string confined(const std::string& rest)
{
    // Below a root, lexical normalisation drops every ".." that would climb above it.
    std::string result = (std::filesystem::path("/") / rest).lexically_normal().generic_string();
    if (rest.empty() || rest.front() != '/') {
        result.erase(0, 1);
    }
    // "a/." names "a": a trailing "/" only where `rest` ends with one.
    if (result.size() > 1 && result.back() == '/' && rest.back() != '/') {
        result.pop_back();
    }
    return result;
}

}  // namespace

std::string FakeHost::systemPath(const std::string& path) const
{
    const std::pair<const std::string, std::string>* best = nullptr;
    for (const auto& mapping : pathMap) {
        if (path.compare(0, mapping.first.size(), mapping.first) == 0 &&
            (best == nullptr || mapping.first.size() > best->first.size())) {
            best = &mapping;
        }
    }
    return best == nullptr ? path : best->second + confined(path.substr(best->first.size()));
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

std::vector<unsigned char> FakeHost::dnsQuery(const std::string& name, int type,
                                              const std::optional<NameServer>& server) const
{
    std::string query = name + " " + std::to_string(type);
    if (server) {
        query += " @" + server->address + ":" + std::to_string(server->port);
    }
    dnsQueries.push_back(query);
    auto found = dnsAnswers.find({name, type});
    return found != dnsAnswers.end() ? found->second : std::vector<unsigned char>();
}

std::string FakeHost::dnsDefaultDomain() const { return searchDomain; }

HostProbe::ApplicationListing FakeHost::applicationListing() const { return applications; }

}  // namespace tvpolicy
