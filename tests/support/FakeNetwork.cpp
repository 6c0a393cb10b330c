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

std::vector<NetworkProbe::WifiNetwork> FakeNetwork::wifiScan(const std::string& ssid, std::string& error)
{
    error = scanError;
    std::vector<WifiNetwork> found;
    for (const WifiNetwork& network : visible) {
        if (network.ssid == ssid) {
            found.push_back(network);
        }
    }
    return found;
}

void FakeNetwork::wifiAssociate(const WifiNetwork& network, const std::string& password, bool enterprise,
                                std::string& error)
{
    associations.push_back({network.ssid, password, enterprise});
    error = associateError;
    if (wifi && joinOnAttempt > 0 && static_cast<int>(associations.size()) >= joinOnAttempt) {
        wifi->ssid = network.ssid;
        wifi->bssid = network.bssid;
    }
}

std::vector<NetworkProbe::WifiSettings> FakeNetwork::wifiStoredProfiles() const { return stored; }

bool FakeNetwork::wifiStoreProfile(const WifiSettings& settings, std::string& error)
{
    error = storeError;
    if (!error.empty()) {
        return false;
    }
    stored.insert(stored.begin(), settings);
    return true;
}

}  // namespace testing_support
