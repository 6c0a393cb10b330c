#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/export.h>

namespace tvpolicy {

/// The networking side of the host probe: interfaces and their addresses, hardware and link
/// state, DNS domains, address renewal, virtual-machine tools and Wi-Fi. Like HostProbe it
/// reads raw values only; the inventory, the interface report and the Wi-Fi manager hold the
/// rules and call it.
///
/// The current network probe is the real backend unless a ScopedNetwork swaps in another (for
/// example a FakeNetwork describing an exact set of interfaces).
class TVPOLICY_API NetworkProbe {
public:
    enum class Family { IPv4, IPv6, Link, Other };

    /// What the hardware lookup of one interface found.
    struct Hardware {
        /// "00:1B:63:AB:CD:EF" form; empty when the interface has no hardware address.
        std::string macAddress;
        /// "Wireless", "Wired", "Unknown" (the hardware type could not be read) or empty (a
        /// medium that is neither).
        std::string medium;
    };

    /// The link state of one interface: `error` is the system error number when the state
    /// could not be read (then the link counts as down).
    struct LinkState {
        bool active = false;
        int error = 0;
    };

    /// One entry of the system's interface address list (an interface appears once per
    /// address, and once more for its link level).
    struct AddressEntry {
        std::string name;
        /// The interface flags as the system reports them (IFF_UP 0x1, IFF_LOOPBACK 0x8,
        /// IFF_POINTOPOINT 0x10, IFF_RUNNING 0x40, IFF_NOARP 0x80).
        unsigned int flags = 0;
        Family family = Family::Other;
        /// The address in text form for IPv4 and IPv6 entries; empty for the others.
        std::string address;
        /// The entry stands for an interface's Ethernet hardware, which makes it a candidate of
        /// the inventory whatever its family: on Linux the link-level entry of an interface of
        /// Ethernet hardware type.
        bool hardwareCandidate = false;
        /// The hardware and link state of the interface named `name`, when the backend read
        /// them together with the list (on Linux, from the same netlink dump); the inventory
        /// then asks interfaceHardware and linkState nothing about this entry. Empty when it
        /// is to ask them.
        std::optional<Hardware> hardware = std::nullopt;
        std::optional<LinkState> link = std::nullopt;
    };

    /// The Wi-Fi interface and the network it is on; empty texts when not associated.
    struct WifiStatus {
        std::string interfaceName;
        std::string ssid;
        std::string bssid;
    };

    /// A network seen by a scan.
    struct WifiNetwork {
        std::string ssid;
        std::string bssid;
        /// The security modes it offers, numbered as WifiManager::getSecurityInt numbers them.
        std::vector<int> securityModes;
        /// The backend's own reference to it (an access point's object path).
        std::string handle;
        /// A one-line description for the log.
        std::string description;
    };

    /// What a scan found: the networks of the name asked for and, when the system refused a
    /// fresh scan (too soon after the last one, say), why; the networks are then the ones it
    /// already knew.
    struct WifiScan {
        std::vector<WifiNetwork> networks;
        std::string refusal;
    };

    /// A stored Wi-Fi profile, as the Wi-Fi manager writes and compares them.
    struct WifiSettings {
        std::string ssid;
        /// Numbered as WifiManager::getSecurityInt numbers it.
        int securityMode = 0;
        std::string passphrase;
        /// The 802.1X method word ("peap", "ttls", "tls", "leap", "sim"); enterprise modes only.
        std::string eapMethod;
        /// The name of the 802.1X setting; empty for the personal modes.
        std::string name8021X;

        bool operator==(const WifiSettings& other) const
        {
            return ssid == other.ssid && securityMode == other.securityMode && passphrase == other.passphrase &&
                   eapMethod == other.eapMethod && name8021X == other.name8021X;
        }
    };

    /// Where the virtual-machine tools are and which process names show that their service runs.
    struct GuestTools {
        std::string vboxServiceProcess;
        std::string vboxManage;
        std::string vmwareServiceProcess;
        std::string vmrun;
    };

    virtual ~NetworkProbe();

    /// The interface address list in the system's order; empty when it cannot be read.
    virtual std::optional<std::vector<AddressEntry>> interfaceAddresses() const = 0;
    /// The hardware address and medium of `name`. Empty when the lookup itself failed (which
    /// is not the same as an interface without hardware: that gives empty texts).
    virtual std::optional<Hardware> interfaceHardware(const std::string& name) const = 0;
    /// Whether the link of `name` is valid and active.
    virtual LinkState linkState(const std::string& name) const = 0;

    /// The host's DNS domain (DHCP option 15, or the resolver's domain); empty when none.
    virtual std::string dnsSuffix() const = 0;
    /// The host's DNS search domains, in the resolver's order (repeats and empties possible).
    virtual std::vector<std::string> dnsSearchDomains() const = 0;
    /// The shell command that prints the current access point's address without a newline.
    virtual std::string bssidCommand() const = 0;
    /// Asks the system to refresh the configuration of `name` (DHCP renew); true when asked.
    virtual bool renewAddress(const std::string& name) = 0;
    /// The same refresh through the system configuration opened with `authorization`, the
    /// platform's authorization reference (never null). A backend without such references
    /// refreshes as renewAddress does, which is what this base class does.
    virtual bool renewAddressAuthorized(const std::string& name, const void* authorization);

    /// The virtual-machine tools of this platform.
    virtual GuestTools guestTools() const = 0;
    /// Runs `command` through the shell and returns its standard output, read through a
    /// buffer of `bufferSize` bytes.
    virtual std::string commandOutput(const std::string& command, unsigned long bufferSize) = 0;

    /// The Wi-Fi interface and its network; empty when there is no Wi-Fi interface (or no
    /// service to ask).
    virtual std::optional<WifiStatus> wifiStatus() const = 0;
    /// Scans for networks named `ssid`; a failure when there is nothing to scan with or the
    /// networks could not be listed.
    virtual Result<WifiScan> wifiScan(const std::string& ssid) = 0;
    /// One attempt to join `network`: with the stored 802.1X settings when `enterprise`, else
    /// with `password` (none when empty).
    virtual Result<void> wifiAssociate(const WifiNetwork& network, const std::string& password, bool enterprise) = 0;
    /// The stored Wi-Fi profiles.
    virtual std::vector<WifiSettings> wifiStoredProfiles() const = 0;
    /// Stores `settings` as a new profile, preferred over every other.
    virtual Result<void> wifiStoreProfile(const WifiSettings& settings) = 0;
};

/// The network probe in use: the real backend unless a ScopedNetwork is alive.
TVPOLICY_API NetworkProbe& currentNetwork();

/// The real network backend of this operating system.
TVPOLICY_API NetworkProbe& systemNetwork();

/// Makes `probe` the current network probe for its lifetime, then restores the previous one.
class TVPOLICY_API ScopedNetwork {
public:
    explicit ScopedNetwork(NetworkProbe& probe);
    ~ScopedNetwork();
    ScopedNetwork(const ScopedNetwork&) = delete;
    ScopedNetwork& operator=(const ScopedNetwork&) = delete;

private:
    NetworkProbe* previous_;
};

}  // namespace tvpolicy
