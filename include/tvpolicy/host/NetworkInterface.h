#pragma once

#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <tvpolicy/export.h>

namespace com::torvane::api {

class NetworkInterface;

/// The interface inventory: key (MAC address, else interface name; the raw address text for
/// VirtualBox guests) to a heap object. Whoever fills it releases it with freeInstances.
using NetworkInterfaceMap = std::map<std::string, NetworkInterface*>;

/// One network interface of this host, or one adapter of a virtual machine running on it, as
/// the agent reports it: hardware address, addresses, medium, Wi-Fi network, DNS suffix.
///
/// Every host fact comes through the current network probe (tvpolicy::currentNetwork()), so a
/// ScopedNetwork with a FakeNetwork builds the inventory of a described host.
class TVPOLICY_API NetworkInterface {
public:
    NetworkInterface() = default;

    /// "00:1B:63:AB:CD:EF" form; empty for interfaces without a hardware address.
    std::string getMACAddress() const { return mac_; }
    /// The first IPv4 address, or "" when there is none.
    std::string getIPv4Address() const { return ipv4_.empty() ? std::string() : ipv4_.front(); }
    void getIPv4Addresses(std::vector<std::string>& addresses) const { addresses = ipv4_; }
    /// The first IPv6 address, or "" when there is none.
    std::string getIPv6Address() const { return ipv6_.empty() ? std::string() : ipv6_.front(); }
    void getIPv6Addresses(std::vector<std::string>& addresses) const { addresses = ipv6_; }
    std::string getName() const { return name_; }
    std::string getDescription() const { return description_; }
    /// "Wireless", "Wired", "Unknown", "VirtualGuest" or empty.
    std::string getMedium() const { return medium_; }
    std::string getESSID() const { return essid_; }
    std::string getBSSID() const { return bssid_; }
    std::string getDNSSuffix() const { return dnsSuffix_; }
    std::string getVMName() const { return vmName_; }
    bool isVirtualGuest() const { return virtualGuest_; }
    /// The link is valid and active (reported as the operational status).
    bool isUp() const { return up_; }

    void setMACAddress(std::string value) { mac_ = std::move(value); }
    void addIPv4Address(std::string value) { ipv4_.push_back(std::move(value)); }
    void addIPv6Address(std::string value) { ipv6_.push_back(std::move(value)); }
    void setName(std::string value) { name_ = std::move(value); }
    void setDescription(std::string value) { description_ = std::move(value); }
    void setMedium(std::string value) { medium_ = std::move(value); }
    void setESSID(std::string value) { essid_ = std::move(value); }
    void setBSSID(std::string value) { bssid_ = std::move(value); }
    void setDNSSuffix(std::string value) { dnsSuffix_ = std::move(value); }
    void setVMName(std::string value) { vmName_ = std::move(value); }
    void setVirtualGuest(bool value) { virtualGuest_ = value; }
    void setUp(bool value) { up_ = value; }

    /// Adds one entry per qualifying host interface (see the README's interface section for
    /// the admission rule); an address list that cannot be read leaves the map unchanged.
    static void getInstances(NetworkInterfaceMap& interfaces);
    /// Deletes every object of the map; the entries are left for the caller to clear.
    static void freeInstances(NetworkInterfaceMap& interfaces);
    /// getVBoxGuestInterfaces, then getVMwareGuestInterfaces.
    static void getVirtualGuestInterfaces(NetworkInterfaceMap& interfaces);
    /// Adds the adapters of running VirtualBox guests, keyed by their raw address text.
    static void getVBoxGuestInterfaces(NetworkInterfaceMap& interfaces);
    /// Adds the adapters of running VMware guests, keyed by their normalised address.
    static void getVMwareGuestInterfaces(NetworkInterfaceMap& interfaces);
    /// Does nothing on this platform.
    static void getLibVirtGuestInterfaces(NetworkInterfaceMap& interfaces);
    /// Appends every IPv4 and IPv6 address of every interface, loopback included, in the
    /// system's order.
    static void getIPAddresses(std::vector<std::string>& addresses);
    /// Appends the host's DNS search domains that are not empty and not in `suffixes` yet.
    static void getGlobalDNSSuffixes(std::vector<std::string>& suffixes);

    /// Asks the system to refresh this interface's configuration (DHCP renew) and prints
    /// "Mac-OS-X DHCP Renew Status = 1" (or 0) on standard output.
    void renewIPAddress();
    /// The same, unless `authorization` is null (then nothing happens).
    void renewIPAddressAuth(const void* authorization);
    /// Does nothing on this platform.
    void releaseIPAddress();

    TVPOLICY_API friend std::ostream& operator<<(std::ostream& out, const NetworkInterface& interface);

private:
    std::string mac_;
    std::vector<std::string> ipv4_;
    std::vector<std::string> ipv6_;
    std::string name_;
    std::string description_;
    std::string medium_;
    std::string essid_;
    std::string bssid_;
    std::string dnsSuffix_;
    std::string vmName_;
    bool virtualGuest_ = false;
    bool up_ = false;
};

/// The host's DNS domain (the same for every interface); empty when none is configured.
TVPOLICY_API std::string getSearchDomain();
/// The current access point's address as the Wi-Fi tool prints it (no newline); empty when
/// there is none.
TVPOLICY_API std::string getBSSIDFromAirport();
/// Appends the addresses of the ethernetN adapters of the VMX file at `path`: the generated
/// address of "generated" adapters, the normalised address of "static" ones, in sorted prefix
/// order. A file that does not open adds nothing.
TVPOLICY_API void getAddressesFromVMXFile(const std::string& path, std::vector<std::string>& macs);

}  // namespace com::torvane::api
