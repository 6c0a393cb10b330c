#pragma once

#include <string>

#include <tvpolicy/agent/WifiConfigurationProfile.h>
#include <tvpolicy/export.h>

/// Puts this computer on the wireless network the server prescribes: reads the current
/// network, stores a profile made from a WifiConfigurationProfile and joins networks. On Linux
/// it talks to NetworkManager over the system bus (through the current network probe, so a
/// ScopedNetwork with a FakeNetwork describes a Wi-Fi interface exactly).
///
/// Without Wi-Fi hardware or NetworkManager every operation logs why and returns its empty or
/// false result at once. Every log line is timestamped, on standard error.
class TVPOLICY_API WifiManager {
public:
    /// CoreWLAN's own number for WPA2 Enterprise, which the security table shifts by one.
    static constexpr int kCWSecurityModeWPA2_Enterprise = 5;
    /// Association attempts while the interface is not on the target network.
    static constexpr int associationAttempts = 3;

    WifiManager() = default;
    virtual ~WifiManager() = default;

    bool isWifiAvailable() const { return true; }
    /// The current network's name as wide text; empty when there is no interface or network.
    std::wstring getCurrentProfileName() const;
    /// The same as UTF-8.
    std::string getCurrentProfileNameUtf8() const;
    /// The current access point's address; empty when there is none.
    std::string getCurrentBSSID() const;

    /// Joins the network `name` (unless already on it): scans for it, and makes up to
    /// associationAttempts attempts, with the stored 802.1X settings when the network is an
    /// enterprise one, else with `password`. True when the interface is, or ends, on the network.
    /// The last argument is not used.
    bool connectToProfile(std::wstring name, std::string password,
                          com::torvane::WifiConfigurationProfile::Security security,
                          std::wstring unused = std::wstring());

    /// The security mode number of the profile: OPEN 0, WEP 1, WEP_ENTERPRISE 4, WPA 2,
    /// WPA_ENTERPRISE 5, WPA2 3, WPA2_ENTERPRISE 6; anything else 0.
    int getSecurityInt(com::torvane::WifiConfigurationProfile& profile) const;

    /// Stores a profile made from `profile` (SSID, mapped security, pass phrase, and for the
    /// enterprise kinds an 802.1X setting named "Gatewarden Configured 802.1x Profile") as the
    /// preferred one, unless an equal one is stored, then joins the network as
    /// connectToProfile does. True when the interface is, or ends, on the network.
    bool createModifyProfile(com::torvane::WifiConfigurationProfile& profile) const;

    /// Inert on this platform: return false at once.
    bool createModifyProfile(std::wstring name, std::wstring ssid, std::wstring password) const;
    bool setProfilePosition(std::wstring name, long position) const;
    bool reconnect(long attempts, long delay) const;
};
