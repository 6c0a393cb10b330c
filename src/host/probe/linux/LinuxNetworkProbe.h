#pragma once

#include <tvpolicy/host/NetworkProbe.h>

namespace tvpolicy {

/// The network probe of Linux: routing netlink dumps of the links and addresses (with each
/// link's hardware and link state), /sys/class/net for lookups by name and for Wi-Fi,
/// resolv.conf, and NetworkManager and systemd-resolved over the system bus.
class LinuxNetworkProbe : public NetworkProbe {
public:
    std::optional<std::vector<AddressEntry>> interfaceAddresses() const override;
    std::optional<Hardware> interfaceHardware(const std::string& name) const override;
    LinkState linkState(const std::string& name) const override;
    std::string dnsSuffix() const override;
    std::vector<std::string> dnsSearchDomains() const override;
    std::string bssidCommand() const override;
    bool renewAddress(const std::string& name) override;
    GuestTools guestTools() const override;
    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    std::optional<WifiStatus> wifiStatus() const override;
    Result<WifiScan> wifiScan(const std::string& ssid) override;
    Result<void> wifiAssociate(const WifiNetwork& network, const std::string& password, bool enterprise) override;
    std::vector<WifiSettings> wifiStoredProfiles() const override;
    Result<void> wifiStoreProfile(const WifiSettings& settings) override;
};

}  // namespace tvpolicy
