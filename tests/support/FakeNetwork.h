#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/host/NetworkProbe.h>

namespace testing_support {

/// A described network: interfaces, DNS domains, command outputs and a Wi-Fi interface are
/// plain fields that the caller sets; renewals, commands, association attempts and stored
/// profiles are recorded. Used with ScopedNetwork to run the inventory and the Wi-Fi manager
/// against exact facts.
class FakeNetwork : public tvpolicy::NetworkProbe {
public:
    /// The interface address list; empty means the list cannot be read.
    std::optional<std::vector<AddressEntry>> addresses = std::vector<AddressEntry>();
    /// Hardware by interface name; an interface not listed has none (empty texts).
    std::map<std::string, Hardware> hardware;
    /// How many lookups of an interface fail before one succeeds (each failure counts down).
    mutable std::map<std::string, int> failingLookups;
    /// Every interface name looked up, in order.
    mutable std::vector<std::string> lookups;
    /// Link state by interface name; an interface not listed is down.
    std::map<std::string, LinkState> links;

    std::string suffix;                      ///< answered by dnsSuffix()
    std::vector<std::string> searchDomains;  ///< answered by dnsSearchDomains()
    std::string bssidTool;                   ///< answered by bssidCommand()
    bool renewResult = true;                 ///< what renewAddress returns
    std::vector<std::string> renewed;        ///< every interface given to renewAddress

    GuestTools tools;                            ///< answered by guestTools()
    std::map<std::string, std::string> outputs;  ///< command text to its output
    std::vector<std::string> commands;           ///< every command run, in order

    std::optional<WifiStatus> wifi;    ///< the Wi-Fi interface, if any
    std::vector<WifiNetwork> visible;  ///< what a scan finds (filtered by SSID)
    std::string scanError;             ///< every scan's refusal when not empty (it still lists)
    /// The association attempt (counted from 1) after which the interface is on the network;
    /// 0 never joins.
    int joinOnAttempt = 1;
    std::string associateError;  ///< makes every attempt fail when not empty
    struct Association {
        std::string ssid;
        std::string password;
        bool enterprise = false;
    };
    std::vector<Association> associations;  ///< every association attempt
    std::vector<WifiSettings> stored;       ///< stored profiles; wifiStoreProfile adds to the front
    std::string storeError;                 ///< makes wifiStoreProfile fail when not empty

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
    tvpolicy::Result<WifiScan> wifiScan(const std::string& ssid) override;
    tvpolicy::Result<void> wifiAssociate(const WifiNetwork& network, const std::string& password,
                                         bool enterprise) override;
    std::vector<WifiSettings> wifiStoredProfiles() const override;
    tvpolicy::Result<void> wifiStoreProfile(const WifiSettings& settings) override;
};

}  // namespace testing_support
