#include <tvpolicy/host/DescribedHostProbe.h>

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

std::string DescribedHostProbe::systemPath(const std::string& path) const
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

std::string DescribedHostProbe::osProductVersion() const { return productVersion; }

std::string DescribedHostProbe::osProductName() const { return productName; }

std::string DescribedHostProbe::nodeName() const { return node; }

std::string DescribedHostProbe::machineArchitecture() const { return architecture; }

HostProbe::HardwareIdentity DescribedHostProbe::hardwareIdentity() const { return hardware; }

std::vector<HostProbe::ProcessEntry> DescribedHostProbe::processTable() const { return processes; }

std::string DescribedHostProbe::dnsFlushCommand() const { return flushCommand; }

std::string DescribedHostProbe::commandOutput(const std::string& command, unsigned long)
{
    auto found = commandOutputs.find(command);
    return found != commandOutputs.end() ? found->second : std::string();
}

int DescribedHostProbe::runShellCommand(const std::string&) { return commandStatus; }

void DescribedHostProbe::openURL(const std::string&) {}

Result<std::vector<unsigned char>> DescribedHostProbe::dnsQuery(const std::string& name, int type,
                                                                const std::optional<NameServer>&) const
{
    auto found = dnsAnswers.find({name, type});
    if (found == dnsAnswers.end()) {
        return dnsFailure(DnsNoAnswer);
    }
    return found->second;
}

std::string DescribedHostProbe::dnsDefaultDomain() const { return searchDomain; }

HostProbe::ApplicationListing DescribedHostProbe::applicationListing() const { return applications; }

}  // namespace tvpolicy
