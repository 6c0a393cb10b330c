#include "support/FakeNetwork.h"

namespace testing_support {

using tvpolicy::NetworkProbe;

std::optional<std::vector<NetworkProbe::AddressEntry>> FakeNetwork::interfaceAddresses() const { return addresses; }

std::optional<NetworkProbe::Hardware> FakeNetwork::interfaceHardware(const std::string& name) const
{
    lookups.push_back(name);
    auto failing = failingLookups.find(name);
    if (failing != failingLookups.end() && failing->second > 0) {
        --failing->second;
        return std::nullopt;
    }
    auto found = hardware.find(name);
    return found != hardware.end() ? found->second : Hardware();
}

NetworkProbe::LinkState FakeNetwork::linkState(const std::string& name) const
{
    auto found = links.find(name);
    return found != links.end() ? found->second : LinkState();
}

std::string FakeNetwork::dnsSuffix() const { return suffix; }

std::vector<std::string> FakeNetwork::dnsSearchDomains() const { return searchDomains; }

std::string FakeNetwork::bssidCommand() const { return bssidTool; }

bool FakeNetwork::renewAddress(const std::string& name)
{
    renewed.push_back(name);
    return renewResult;
}

NetworkProbe::GuestTools FakeNetwork::guestTools() const { return tools; }

std::string FakeNetwork::commandOutput(const std::string& command, unsigned long)
{
    commands.push_back(command);
    auto found = outputs.find(command);
    return found != outputs.end() ? found->second : std::string();
}

std::optional<NetworkProbe::WifiStatus> FakeNetwork::wifiStatus() const { return wifi; }

tvpolicy::Result<NetworkProbe::WifiScan> FakeNetwork::wifiScan(const std::string& ssid)
{
    WifiScan scan;
    scan.refusal = scanError;
    for (const WifiNetwork& network : visible) {
        if (network.ssid == ssid) {
            scan.networks.push_back(network);
        }
    }
    return scan;
}

tvpolicy::Result<void> FakeNetwork::wifiAssociate(const WifiNetwork& network, const std::string& password,
                                                  bool enterprise)
{
    associations.push_back({network.ssid, password, enterprise});
    if (wifi && joinOnAttempt > 0 && static_cast<int>(associations.size()) >= joinOnAttempt) {
        wifi->ssid = network.ssid;
        wifi->bssid = network.bssid;
    }
    if (!associateError.empty()) {
        return tvpolicy::Failure{associateError};
    }
    return {};
}

std::vector<NetworkProbe::WifiSettings> FakeNetwork::wifiStoredProfiles() const { return stored; }

tvpolicy::Result<void> FakeNetwork::wifiStoreProfile(const WifiSettings& settings)
{
    if (!storeError.empty()) {
        return tvpolicy::Failure{storeError};
    }
    stored.insert(stored.begin(), settings);
    return {};
}

}  // namespace testing_support
