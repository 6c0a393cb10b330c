#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/host/NetworkProbe.h>

#include "host/probe/linux/SdBus.h"

namespace tvpolicy {

/// NetworkManager (and systemd-resolved) over the system bus: the Wi-Fi device and its access
/// points, stored Wi-Fi connections, DHCP options and re-activation. Every operation gives its
/// empty result when the bus or the service is not there.
class NetworkManagerClient {
public:
    NetworkManagerClient();

    bool available() const { return bus_.connected(); }
    const std::string& lastError() const { return bus_.lastError(); }

    /// systemd-resolved's search domains (route-only domains left out), in its order; empty
    /// when it does not run.
    std::optional<std::vector<std::string>> resolvedDomains();
    /// The domain-name option (15) of the primary connection's DHCPv4 lease; empty when none.
    std::string dhcpDomainName();
    /// Re-activates the connection active on the device of interface `name`.
    bool reactivate(const std::string& name);

    /// The first Wi-Fi device: its object path and status.
    std::optional<std::pair<std::string, NetworkProbe::WifiStatus>> wifiDevice();
    Result<NetworkProbe::WifiScan> scan(const std::string& ssid);
    Result<void> associate(const NetworkProbe::WifiNetwork& network, const std::string& password, bool enterprise);

    struct StoredWifi {
        std::string path;
        NetworkProbe::WifiSettings settings;
        int priority = 0;
    };
    std::vector<StoredWifi> storedWifi();
    Result<void> store(const NetworkProbe::WifiSettings& settings);

private:
    std::optional<std::string> accessPointOf(const std::string& device);
    std::optional<NetworkProbe::WifiNetwork> accessPoint(const std::string& path);
    bool waitForActivation(const std::string& activePath);

    linux_bus::SystemBus bus_;
};

}  // namespace tvpolicy
