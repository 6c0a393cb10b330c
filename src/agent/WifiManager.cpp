#include <tvpolicy/agent/WifiManager.h>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <iostream>
#include <optional>
#include <vector>

#include <unistd.h>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/host/NetworkProbe.h>

#include <tvpolicy/base/Utf8.h>
#include "host/CurrentWifi.h"

namespace {

using com::torvane::WifiConfigurationProfile;
using tvpolicy::NetworkProbe;

const char* const name8021X = "Gatewarden Configured 802.1x Profile";

std::ostream& log() { return tvi::tslog(std::clog); }

// Wide text holds one code point per character; it travels as UTF-8. A value that is no code
// point (a surrogate, or past U+10FFFF) becomes U+FFFD.
std::string utf8(const std::wstring& text)
{
    std::string out;
    for (wchar_t wide : text) {
        tvpolicy::utf8::append(out, static_cast<std::int32_t>(wide));
    }
    return out;
}

// UTF-8 to one wide character per code point; a byte that does not start a valid sequence
// becomes U+FFFD.
std::wstring wide(const std::string& text)
{
    std::wstring out;
    for (std::size_t i = 0; i < text.size();) {
        std::int32_t c = tvpolicy::utf8::next(text, i);
        out += static_cast<wchar_t>(c < 0 ? tvpolicy::utf8::replacement : c);
    }
    return out;
}

// The log texts of one operation's scan and association.
struct JoinTexts {
    const char* alreadyConnected;
    const char* signal;
    const char* attempting;
    const char* notFound;
    const char* enterpriseError;
    const char* personalError;
    const char* completed;
    const char* caught;
};

const JoinTexts connectTexts = {"ConnectToNetwork Already connected to target ssid",
                                "ConnectToProfile Signal: ",
                                "connectToProfile attempting associateToNetwork.",
                                "ConnectToProfile Network Signal Not Found...",
                                "connectToProfile AssociateToEnterpriseNetwork NSError: ",
                                "connectToProfile AssociateToEnterpriseNetwork NSError: ",
                                "connectToProfile associateToNetwork completed.",
                                "ConnectToProfile: Caught "};

const JoinTexts createTexts = {
    "CreateModifyProfile Already connected to target ssid",        "CreateModifyProfile Signal: ",
    "CreateModifyProfile attempting associateToNetwork.",          "CreateModifyProfile Network Signal Not Found...",
    "CreateModifyProfile: AssociateToEnterpriseNetwork NSError: ", "CreateModifyProfile: AssociateToNetwork NSError: ",
    "CreateModifyProfile: associateToNetwork completed.",          "CreateModifyProfile: Caught "};

std::string orNull(const std::string& text) { return text.empty() ? "(null)" : text; }

bool offers(const NetworkProbe::WifiNetwork& network, int mode)
{
    return std::find(network.securityModes.begin(), network.securityModes.end(), mode) != network.securityModes.end();
}

// Scans for `ssid` and associates with the first network found, a bounded number of times,
// until the interface is on it. True when it is, or ends, on the network.
bool join(const std::string& ssid, const std::string& password, const JoinTexts& texts, const char* operation)
{
    NetworkProbe& network = tvpolicy::currentNetwork();
    try {
        std::optional<NetworkProbe::WifiStatus> status = tvpolicy::currentWifiStatus(operation);
        if (!status) {
            return false;
        }
        if (status->ssid == ssid) {
            log() << texts.alreadyConnected << std::endl;
            return true;
        }
        log() << "Current SSID = " << orNull(status->ssid) << std::endl;
        tvpolicy::Result<NetworkProbe::WifiScan> scan = network.wifiScan(ssid);
        const std::vector<NetworkProbe::WifiNetwork> none;
        const std::vector<NetworkProbe::WifiNetwork>& found = scan ? scan->networks : none;
        std::string listed;
        for (const NetworkProbe::WifiNetwork& seen : found) {
            listed += (listed.empty() ? "" : ", ") + seen.description;
        }
        log() << "Visible Networks: {(" << listed << ")}" << std::endl;
        const std::string& refusal = scan ? scan->refusal : scan.error();
        if (!refusal.empty()) {
            log() << "NSError " << refusal << ":" << std::endl;
        }
        if (found.empty()) {
            log() << texts.notFound << std::endl;
            return false;
        }
        const NetworkProbe::WifiNetwork& target = found.front();
        log() << texts.signal << target.description << std::endl;
        log() << texts.attempting << std::endl;
        bool enterprise = offers(target, 6) || offers(target, 5) || offers(target, 4);
        for (int attempt = 0; attempt < WifiManager::associationAttempts; ++attempt) {
            status = network.wifiStatus();
            if (status && status->ssid == ssid) {
                return true;
            }
            log() << "Current SSID 2 = " << orNull(status ? status->ssid : std::string()) << std::endl;
            log() << texts.attempting << std::endl;
            tvpolicy::Result<void> joined = network.wifiAssociate(target, password, enterprise);
            log() << (enterprise ? texts.enterpriseError : texts.personalError) << orNull(joined.error()) << std::endl;
            log() << texts.completed << std::endl;
        }
        status = network.wifiStatus();
        return status && status->ssid == ssid;
    } catch (const std::exception& exception) {
        log() << texts.caught << "exception: " << exception.what() << std::endl;
        return false;
    }
}

std::string eapWord(WifiConfigurationProfile::EAPType type)
{
    switch (type) {
    case WifiConfigurationProfile::TLS: return "tls";
    case WifiConfigurationProfile::LEAP: return "leap";
    case WifiConfigurationProfile::TTLS: return "ttls";
    case WifiConfigurationProfile::PEAP: return "peap";
    case WifiConfigurationProfile::EAP_SIM: return "sim";
    default: return "peap";
    }
}

std::string describe(const NetworkProbe::WifiSettings& settings)
{
    return "<CWWirelessProfile: ssid=" + settings.ssid + " securityMode=" + std::to_string(settings.securityMode) +
           " passphrase=" + (settings.passphrase.empty() ? "(null)" : "<hidden>") + ">";
}

}  // namespace

std::wstring WifiManager::getCurrentProfileName() const { return wide(getCurrentProfileNameUtf8()); }

std::string WifiManager::getCurrentProfileNameUtf8() const
{
    std::optional<NetworkProbe::WifiStatus> status = tvpolicy::currentWifiStatus("getCurrentProfileName");
    return status ? status->ssid : std::string();
}

std::string WifiManager::getCurrentBSSID() const
{
    std::optional<NetworkProbe::WifiStatus> status = tvpolicy::currentWifiStatus("getCurrentBSSID");
    return status ? status->bssid : std::string();
}

bool WifiManager::connectToProfile(std::wstring name, std::string password, WifiConfigurationProfile::Security,
                                   std::wstring)
{
    std::string ssid = utf8(name);
    log() << "ConnectToProfile Name: " << ssid << std::endl;
    return join(ssid, password, connectTexts, "ConnectToProfile");
}

int WifiManager::getSecurityInt(WifiConfigurationProfile& profile) const
{
    switch (profile.getSecurity()) {
    case WifiConfigurationProfile::WEP: return 1;
    case WifiConfigurationProfile::WEP_ENTERPRISE: return 4;
    case WifiConfigurationProfile::WPA: return 2;
    case WifiConfigurationProfile::WPA_ENTERPRISE: return 5;
    case WifiConfigurationProfile::WPA2: return 3;
    case WifiConfigurationProfile::WPA2_ENTERPRISE: return 6;
    default: return 0;
    }
}

bool WifiManager::createModifyProfile(WifiConfigurationProfile& profile) const
{
    NetworkProbe::WifiSettings settings;
    settings.securityMode = getSecurityInt(profile);
    log() << "securityInt = " << settings.securityMode << std::endl;
    log() << "kCWSecurityModeWPA2_Enterprise = " << kCWSecurityModeWPA2_Enterprise << std::endl;
    log() << "GetUID == " << ::getuid() << std::endl;
    settings.ssid = profile.getSSID();
    settings.passphrase = profile.getPassword();
    if (settings.securityMode >= 4) {
        settings.eapMethod = eapWord(profile.getEapType());
        settings.name8021X = name8021X;
        log() << "CW8021XProfile: <CW8021XProfile: userDefinedName=" << name8021X << " ssid=" << settings.ssid
              << " eap=" << settings.eapMethod << ">" << std::endl;
    }
    log() << "CWWirelessProfile: " << describe(settings) << std::endl;

    // The profile is stored first, so that joining an enterprise network finds its 802.1X
    // settings; an equal stored profile only ends the storing part.
    NetworkProbe& network = tvpolicy::currentNetwork();
    try {
        if (!tvpolicy::currentWifiStatus("CreateModifyProfile")) {
            return false;
        }
        std::vector<NetworkProbe::WifiSettings> stored = network.wifiStoredProfiles();
        if (std::find(stored.begin(), stored.end(), settings) != stored.end()) {
            log() << "CreateModifyProfile: Specified Configuration Already Exists...exiting." << std::endl;
        } else {
            tvpolicy::Result<void> committed = network.wifiStoreProfile(settings);
            if (!committed) {
                log() << "CreateModifyProfile: commitConfiguration NSError: " << orNull(committed.error()) << std::endl;
            }
        }
    } catch (const std::exception& exception) {
        log() << createTexts.caught << "exception: " << exception.what() << std::endl;
        return false;
    }
    return join(settings.ssid, settings.passphrase, createTexts, "CreateModifyProfile");
}

bool WifiManager::createModifyProfile(std::wstring, std::wstring, std::wstring) const { return false; }

bool WifiManager::setProfilePosition(std::wstring, long) const { return false; }

bool WifiManager::reconnect(long, long) const { return false; }
