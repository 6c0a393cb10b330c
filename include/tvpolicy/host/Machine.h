#pragma once

#include <string>
#include <vector>

#include <tvpolicy/export.h>

/// The library's face of the host: identity questions (OS version and name, host name,
/// hardware description, UUID and serial number) and host actions. Every fact comes from the
/// current host probe (tvpolicy::currentHost()), so a ScopedHost changes what Machine answers.
///
/// Most actions do nothing on this platform: the interface is shared with platforms where the
/// agent performs them here, and they return at once (false, 0 or an empty string).
class TVPOLICY_API Machine {
public:
    Machine() = delete;

    /// The OS product version ("12", "10.6.8") with every newline removed; logs "Version = ".
    static std::string getOSVersion();
    /// The OS product name and version, each without newlines, joined by one blank.
    static std::string getOSString();
    /// The node name cut at its first "." ("alpha.lan" gives "alpha").
    static std::string getHostName();
    /// The processor architecture ("x86_64").
    static std::string getHWDescription();
    /// The manufacturer (empty when unknown), then " " + product name and " " + version for
    /// each that the hardware records.
    static std::string getHardwareDesc();
    /// The hardware's UUID (at most 127 characters); empty when unknown or unreadable.
    static std::string getSystemUUID();
    /// The hardware's serial number (at most 127 characters); empty when unknown or unreadable.
    static std::string getSystemSerialNumber();

    /// Builds the interface inventory and appends, for each interface in key order, its MAC
    /// address, first IPv4 address, description and medium to the four lists (one entry per
    /// interface in each, empty strings included).
    static void getInterfaces(std::vector<std::string>& macs, std::vector<std::string>& ips,
                              std::vector<std::string>& descriptions, std::vector<std::string>& media);
    /// The interfaces as query text, in key order:
    /// "hw_desc=NAME&mac=MAC&hw_ip=IPV4[&hw_media=MEDIUM]" joined by "&"; values not encoded.
    /// The argument is not used.
    static std::string getMACAddress(std::string unused);

    /// Opens `url` in the user's browser; unchecked.
    static void launchBrowser(std::string url);
    /// Shows nothing on this platform.
    static void showMessage(std::string title, std::string text, std::string buttons);

    static void shutdown();
    static void restart();
    static void logOut();
    static void clearBrowserCache();
    static void clearDNSCache();
    static void enableAutoUpdate();
    static void disableEthernetBridge();
    static void enablePing();
    static void enableFirewall();
    static void addUser(std::string name, std::string password);
    static void enableDHCP();
    static void sleep(long seconds);
    static void setHostName(std::string name);
    static bool hotFixInstalled(std::string name);
    static bool updatesInstalled();
    static bool restartService(std::string name);
    static int execute(std::string command, std::string arguments);
    static std::string getSystemAssetTag();
    static std::string getJoinedDomain();
};
