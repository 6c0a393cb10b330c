#pragma once

#include <tvpolicy/host/NetworkProbe.h>

namespace tvpolicy {

/// The network probe of macOS: getifaddrs, the I/O registry (BSD-name matching, the
/// controller's medium dictionary and MAC address), SIOCGIFMEDIA, the SystemConfiguration
/// dynamic store and preferences, and CoreWLAN through the Objective-C runtime.
class DarwinNetworkProbe : public NetworkProbe {
public:
    std::optional<std::vector<AddressEntry>> interfaceAddresses() const override;
    std::optional<Hardware> interfaceHardware(const std::string& name) const override;
    LinkState linkState(const std::string& name) const override;
    std::string dnsSuffix() const override;
    std::vector<std::string> dnsSearchDomains() const override;
    std::string bssidCommand() const override;
    bool renewAddress(const std::string& name) override;
    /// Through the preferences opened with the AuthorizationRef `authorization` (the services of
    /// the current set).
    bool renewAddressAuthorized(const std::string& name, const void* authorization) override;
    GuestTools guestTools() const override;
    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    std::optional<WifiStatus> wifiStatus() const override;
    Result<WifiScan> wifiScan(const std::string& ssid) override;
    Result<void> wifiAssociate(const WifiNetwork& network, const std::string& password, bool enterprise) override;
    std::vector<WifiSettings> wifiStoredProfiles() const override;
    Result<void> wifiStoreProfile(const WifiSettings& settings) override;
};

}  // namespace tvpolicy
