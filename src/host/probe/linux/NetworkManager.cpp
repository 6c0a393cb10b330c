#include "host/probe/linux/NetworkManager.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <map>
#include <thread>
#include <variant>

#include <systemd/sd-id128.h>

namespace tvpolicy {

namespace {

using linux_bus::Message;

const char* const nm = "org.freedesktop.NetworkManager";
const char* const nmPath = "/org/freedesktop/NetworkManager";
const char* const settingsPath = "/org/freedesktop/NetworkManager/Settings";
const char* const deviceIface = "org.freedesktop.NetworkManager.Device";
const char* const wirelessIface = "org.freedesktop.NetworkManager.Device.Wireless";
const char* const apIface = "org.freedesktop.NetworkManager.AccessPoint";
const char* const activeIface = "org.freedesktop.NetworkManager.Connection.Active";
const char* const settingsIface = "org.freedesktop.NetworkManager.Settings";
const char* const connectionIface = "org.freedesktop.NetworkManager.Settings.Connection";

constexpr std::uint32_t deviceTypeWifi = 2;
constexpr std::uint32_t apPrivacy = 0x1;
constexpr std::uint32_t keyMgmtPsk = 0x100;
constexpr std::uint32_t keyMgmt8021X = 0x200;
constexpr std::uint32_t activated = 2;
constexpr std::uint32_t deactivated = 4;

// A value of a connection setting, as NetworkManager types them: text ("s"), bytes ("ay"), a
// signed or unsigned 32-bit number ("i", "u") or a list of texts ("as").
struct Bytes {
    std::string data;
};
using Value = std::variant<std::string, Bytes, std::int32_t, std::uint32_t, std::vector<std::string>>;
using Setting = std::vector<std::pair<std::string, Value>>;
using Settings = std::vector<std::pair<std::string, Setting>>;

Value text(std::string value) { return value; }
Value bytes(std::string value) { return Bytes{std::move(value)}; }
Value int32(std::int32_t value) { return value; }
Value uint32(std::uint32_t value) { return value; }
Value texts(std::vector<std::string> value) { return value; }

int appendValue(sd_bus_message* m, const Value& value)
{
    if (const auto* item = std::get_if<std::string>(&value)) {
        return sd_bus_message_append(m, "v", "s", item->c_str());
    }
    if (const auto* item = std::get_if<std::int32_t>(&value)) {
        return sd_bus_message_append(m, "v", "i", *item);
    }
    if (const auto* item = std::get_if<std::uint32_t>(&value)) {
        return sd_bus_message_append(m, "v", "u", *item);
    }
    if (const auto* item = std::get_if<Bytes>(&value)) {
        int r = sd_bus_message_open_container(m, 'v', "ay");
        if (r >= 0) {
            r = sd_bus_message_append_array(m, 'y', item->data.data(), item->data.size());
        }
        return r < 0 ? r : sd_bus_message_close_container(m);
    }
    int r = sd_bus_message_open_container(m, 'v', "as");
    r = r < 0 ? r : sd_bus_message_open_container(m, 'a', "s");
    for (const std::string& item : std::get<std::vector<std::string>>(value)) {
        r = r < 0 ? r : sd_bus_message_append(m, "s", item.c_str());
    }
    r = r < 0 ? r : sd_bus_message_close_container(m);
    return r < 0 ? r : sd_bus_message_close_container(m);
}

int appendSettings(sd_bus_message* m, const Settings& settings)
{
    int r = sd_bus_message_open_container(m, 'a', "{sa{sv}}");
    for (const auto& [name, setting] : settings) {
        r = r < 0 ? r : sd_bus_message_open_container(m, 'e', "sa{sv}");
        r = r < 0 ? r : sd_bus_message_append(m, "s", name.c_str());
        r = r < 0 ? r : sd_bus_message_open_container(m, 'a', "{sv}");
        for (const auto& [key, value] : setting) {
            r = r < 0 ? r : sd_bus_message_open_container(m, 'e', "sv");
            r = r < 0 ? r : sd_bus_message_append(m, "s", key.c_str());
            r = r < 0 ? r : appendValue(m, value);
            r = r < 0 ? r : sd_bus_message_close_container(m);
        }
        r = r < 0 ? r : sd_bus_message_close_container(m);
        r = r < 0 ? r : sd_bus_message_close_container(m);
    }
    return r < 0 ? r : sd_bus_message_close_container(m);
}

// The a{sa{sv}} of a connection, flattened to "setting.key" -> value for the keys read here.
using Flat = std::map<std::string, Value>;

void readSettings(sd_bus_message* m, Flat& flat)
{
    if (sd_bus_message_enter_container(m, 'a', "{sa{sv}}") <= 0) {
        return;
    }
    while (sd_bus_message_enter_container(m, 'e', "sa{sv}") > 0) {
        const char* name = nullptr;
        if (sd_bus_message_read(m, "s", &name) <= 0) {
            return;
        }
        std::string setting = name;
        flat[setting] = text(std::string());  // the setting is present
        linux_bus::readVariantDictionary(m, [&](const std::string& key, sd_bus_message* v) {
            std::string full = setting + "." + key;
            return linux_bus::readVariant(v, "s",
                                          [&](sd_bus_message* in) {
                                              const char* value = nullptr;
                                              bool ok = sd_bus_message_read(in, "s", &value) > 0;
                                              flat[full] = text(ok ? value : "");
                                              return ok;
                                          }) ||
                   linux_bus::readVariant(v, "ay",
                                          [&](sd_bus_message* in) {
                                              std::optional<std::string> value = linux_bus::readBytes(in);
                                              flat[full] = bytes(value.value_or(std::string()));
                                              return value.has_value();
                                          }) ||
                   linux_bus::readVariant(v, "i",
                                          [&](sd_bus_message* in) {
                                              std::int32_t value = 0;
                                              bool ok = sd_bus_message_read(in, "i", &value) > 0;
                                              flat[full] = int32(value);
                                              return ok;
                                          }) ||
                   linux_bus::readVariant(v, "as", [&](sd_bus_message* in) {
                       flat[full] = texts(linux_bus::readStrings(in));
                       return true;
                   });
        });
        sd_bus_message_exit_container(m);
    }
    sd_bus_message_exit_container(m);
}

std::string flatText(const Flat& flat, const std::string& key)
{
    auto found = flat.find(key);
    if (found == flat.end()) {
        return std::string();
    }
    // Text and bytes alike (an SSID is bytes).
    const auto* bytesValue = std::get_if<Bytes>(&found->second);
    const auto* textValue = std::get_if<std::string>(&found->second);
    return bytesValue != nullptr ? bytesValue->data : textValue != nullptr ? *textValue : std::string();
}

std::vector<std::string> flatList(const Flat& flat, const std::string& key)
{
    auto found = flat.find(key);
    const auto* list = found != flat.end() ? std::get_if<std::vector<std::string>>(&found->second) : nullptr;
    return list != nullptr ? *list : std::vector<std::string>();
}

bool onlyWpa(const std::vector<std::string>& protocols)
{
    return !protocols.empty() &&
           std::all_of(protocols.begin(), protocols.end(), [](const std::string& p) { return p == "wpa"; });
}

// The security mode of stored settings, numbered as the Wi-Fi manager numbers them.
int securityMode(const Flat& flat)
{
    if (flat.count("802-11-wireless-security") == 0) {
        return 0;
    }
    std::string keyMgmt = flatText(flat, "802-11-wireless-security.key-mgmt");
    bool wpa = onlyWpa(flatList(flat, "802-11-wireless-security.proto"));
    if (keyMgmt == "wpa-psk") {
        return wpa ? 2 : 3;
    }
    if (keyMgmt == "wpa-eap") {
        return wpa ? 5 : 6;
    }
    return keyMgmt == "ieee8021x" ? 4 : 1;
}

std::string secretOf(const Flat& flat, int mode)
{
    if (mode >= 4) {
        return flatText(flat, "802-1x.password");
    }
    return flatText(flat, mode == 1 ? "802-11-wireless-security.wep-key0" : "802-11-wireless-security.psk");
}

std::string newUuid()
{
    sd_id128_t id;
    if (sd_id128_randomize(&id) < 0) {
        return std::string();
    }
    char text[37];
    const std::uint8_t* b = id.bytes;
    std::snprintf(text, sizeof text, "%02x%02x%02x%02x-%02x%02x-%02x%02x-%02x%02x-%02x%02x%02x%02x%02x%02x", b[0], b[1],
                  b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12], b[13], b[14], b[15]);
    return text;
}

// The 802-11-wireless-security (and 802-1x) settings of a security mode.
void addSecurity(Settings& settings, int mode, const std::string& secret, const std::string& eapMethod)
{
    Setting security;
    switch (mode) {
    case 1: security = {{"key-mgmt", text("none")}, {"wep-key0", text(secret)}, {"wep-key-type", uint32(1)}}; break;
    case 2: security = {{"key-mgmt", text("wpa-psk")}, {"proto", texts({"wpa"})}, {"psk", text(secret)}}; break;
    case 3: security = {{"key-mgmt", text("wpa-psk")}, {"proto", texts({"rsn"})}, {"psk", text(secret)}}; break;
    case 4: security = {{"key-mgmt", text("ieee8021x")}}; break;
    case 5: security = {{"key-mgmt", text("wpa-eap")}, {"proto", texts({"wpa"})}}; break;
    case 6: security = {{"key-mgmt", text("wpa-eap")}, {"proto", texts({"rsn"})}}; break;
    default: return;
    }
    settings.emplace_back("802-11-wireless-security", std::move(security));
    if (mode >= 4) {
        Setting dot1x = {{"eap", texts({eapMethod})}};
        if (!secret.empty()) {
            dot1x.emplace_back("password", text(secret));
        }
        settings.emplace_back("802-1x", std::move(dot1x));
    }
}

std::string modesText(const std::vector<int>& modes)
{
    std::string out;
    for (int mode : modes) {
        out += (out.empty() ? "" : ",") + std::to_string(mode);
    }
    return out;
}

}  // namespace

NetworkManagerClient::NetworkManagerClient() = default;

std::optional<std::vector<std::string>> NetworkManagerClient::resolvedDomains()
{
    Message reply = bus_.property("org.freedesktop.resolve1", "/org/freedesktop/resolve1",
                                  "org.freedesktop.resolve1.Manager", "Domains", "a(isb)");
    if (!reply || sd_bus_message_enter_container(reply.get(), 'a', "(isb)") <= 0) {
        return std::nullopt;
    }
    std::vector<std::string> domains;
    std::int32_t index = 0;
    const char* domain = nullptr;
    int routeOnly = 0;
    while (sd_bus_message_read(reply.get(), "(isb)", &index, &domain, &routeOnly) > 0) {
        if (routeOnly == 0) {
            domains.emplace_back(domain);
        }
    }
    return domains;
}

std::string NetworkManagerClient::dhcpDomainName()
{
    std::optional<std::string> primary = bus_.pathProperty(nm, nmPath, nm, "PrimaryConnection");
    if (!primary || *primary == "/") {
        return std::string();
    }
    std::optional<std::string> dhcp = bus_.pathProperty(nm, *primary, activeIface, "Dhcp4Config");
    if (!dhcp || *dhcp == "/") {
        return std::string();
    }
    Message reply = bus_.property(nm, *dhcp, "org.freedesktop.NetworkManager.DHCP4Config", "Options", "a{sv}");
    std::string domain;
    if (reply) {
        linux_bus::readVariantDictionary(reply.get(), [&domain](const std::string& key, sd_bus_message* m) {
            return key == "domain_name" && linux_bus::readVariant(m, "s", [&domain](sd_bus_message* in) {
                       const char* value = nullptr;
                       bool ok = sd_bus_message_read(in, "s", &value) > 0;
                       domain = ok ? value : "";
                       return ok;
                   });
        });
    }
    return domain;
}

bool NetworkManagerClient::reactivate(const std::string& name)
{
    Message device = bus_.call(nm, nmPath, nm, "GetDeviceByIpIface",
                               [&name](sd_bus_message* m) { return sd_bus_message_append(m, "s", name.c_str()); });
    const char* devicePath = nullptr;
    if (!device || sd_bus_message_read(device.get(), "o", &devicePath) <= 0) {
        return false;
    }
    std::optional<std::string> active = bus_.pathProperty(nm, devicePath, deviceIface, "ActiveConnection");
    if (!active || *active == "/") {
        return false;
    }
    std::optional<std::string> connection = bus_.pathProperty(nm, *active, activeIface, "Connection");
    if (!connection || *connection == "/") {
        return false;
    }
    std::string devicePathText = devicePath;
    return bus_.call(nm, nmPath, nm, "ActivateConnection", [&](sd_bus_message* m) {
        return sd_bus_message_append(m, "ooo", connection->c_str(), devicePathText.c_str(), "/");
    }) != nullptr;
}

std::optional<std::string> NetworkManagerClient::accessPointOf(const std::string& device)
{
    std::optional<std::string> ap = bus_.pathProperty(nm, device, wirelessIface, "ActiveAccessPoint");
    if (ap && *ap != "/") {
        return ap;
    }
    // The active connection's specific object is the access point it was activated on.
    std::optional<std::string> active = bus_.pathProperty(nm, device, deviceIface, "ActiveConnection");
    if (!active || *active == "/") {
        return std::nullopt;
    }
    ap = bus_.pathProperty(nm, *active, activeIface, "SpecificObject");
    if (!ap || ap->rfind("/org/freedesktop/NetworkManager/AccessPoint/", 0) != 0) {
        return std::nullopt;
    }
    return ap;
}

std::optional<NetworkProbe::WifiNetwork> NetworkManagerClient::accessPoint(const std::string& path)
{
    std::optional<std::string> ssid = bus_.bytesProperty(nm, path, apIface, "Ssid");
    if (!ssid) {
        return std::nullopt;
    }
    NetworkProbe::WifiNetwork network;
    network.ssid = *ssid;
    network.bssid = bus_.stringProperty(nm, path, apIface, "HwAddress").value_or(std::string());
    network.handle = path;
    std::uint32_t flags = bus_.uintProperty(nm, path, apIface, "Flags").value_or(0);
    std::uint32_t wpa = bus_.uintProperty(nm, path, apIface, "WpaFlags").value_or(0);
    std::uint32_t rsn = bus_.uintProperty(nm, path, apIface, "RsnFlags").value_or(0);
    std::vector<int>& modes = network.securityModes;
    if (wpa == 0 && rsn == 0) {
        modes.push_back((flags & apPrivacy) != 0 ? 1 : 0);
    }
    if ((wpa & keyMgmtPsk) != 0) {
        modes.push_back(2);
    }
    if ((rsn & keyMgmtPsk) != 0) {
        modes.push_back(3);
    }
    if ((wpa & keyMgmt8021X) != 0) {
        modes.push_back(5);
    }
    if ((rsn & keyMgmt8021X) != 0) {
        modes.push_back(6);
    }
    network.description =
        "<CWNetwork: ssid=" + network.ssid + ", bssid=" + network.bssid + ", securityModes=" + modesText(modes) + ">";
    return network;
}

std::optional<std::pair<std::string, NetworkProbe::WifiStatus>> NetworkManagerClient::wifiDevice()
{
    Message reply = bus_.call(nm, nmPath, nm, "GetDevices");
    if (!reply) {
        return std::nullopt;
    }
    for (const std::string& device : linux_bus::readPaths(reply.get())) {
        if (bus_.uintProperty(nm, device, deviceIface, "DeviceType") != deviceTypeWifi) {
            continue;
        }
        NetworkProbe::WifiStatus status;
        status.interfaceName = bus_.stringProperty(nm, device, deviceIface, "Interface").value_or(std::string());
        if (std::optional<std::string> ap = accessPointOf(device)) {
            if (std::optional<NetworkProbe::WifiNetwork> network = accessPoint(*ap)) {
                status.ssid = network->ssid;
                status.bssid = network->bssid;
            }
        }
        return std::make_pair(device, status);
    }
    return std::nullopt;
}

Result<NetworkProbe::WifiScan> NetworkManagerClient::scan(const std::string& ssid)
{
    auto device = wifiDevice();
    if (!device) {
        return Failure{"no Wi-Fi device"};
    }
    NetworkProbe::WifiScan found;
    Message lastScan = bus_.property(nm, device->first, wirelessIface, "LastScan", "x");
    std::int64_t before = 0;
    bool timed = lastScan && sd_bus_message_read(lastScan.get(), "x", &before) > 0;
    Message requested = bus_.call(nm, device->first, wirelessIface, "RequestScan", [&ssid](sd_bus_message* m) {
        int r = sd_bus_message_open_container(m, 'a', "{sv}");
        r = r < 0 ? r : sd_bus_message_open_container(m, 'e', "sv");
        r = r < 0 ? r : sd_bus_message_append(m, "s", "ssids");
        r = r < 0 ? r : sd_bus_message_open_container(m, 'v', "aay");
        r = r < 0 ? r : sd_bus_message_open_container(m, 'a', "ay");
        r = r < 0 ? r : sd_bus_message_append_array(m, 'y', ssid.data(), ssid.size());
        for (int i = 0; i < 4 && r >= 0; ++i) {
            r = sd_bus_message_close_container(m);
        }
        return r;
    });
    if (!requested) {
        found.refusal = bus_.lastError();  // a scan refused (too soon after the last one) still lists what is known
    } else if (timed) {
        // The results arrive when the scan ends; wait for it a bounded time.
        for (int i = 0; i < 50; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            Message now = bus_.property(nm, device->first, wirelessIface, "LastScan", "x");
            std::int64_t after = 0;
            if (!now || sd_bus_message_read(now.get(), "x", &after) <= 0 || after != before) {
                break;
            }
        }
    }
    Message list = bus_.call(nm, device->first, wirelessIface, "GetAllAccessPoints");
    if (!list) {
        list = bus_.call(nm, device->first, wirelessIface, "GetAccessPoints");
    }
    if (!list) {
        return Failure{bus_.lastError()};
    }
    for (const std::string& path : linux_bus::readPaths(list.get())) {
        std::optional<NetworkProbe::WifiNetwork> network = accessPoint(path);
        if (network && network->ssid == ssid) {
            found.networks.push_back(std::move(*network));
        }
    }
    return found;
}

bool NetworkManagerClient::waitForActivation(const std::string& activePath)
{
    for (int i = 0; i < 150; ++i) {
        std::optional<std::uint32_t> state = bus_.uintProperty(nm, activePath, activeIface, "State");
        if (!state || *state == deactivated) {
            return false;
        }
        if (*state == activated) {
            return true;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    return false;
}

Result<void> NetworkManagerClient::associate(const NetworkProbe::WifiNetwork& network, const std::string& password,
                                             bool enterprise)
{
    auto device = wifiDevice();
    if (!device) {
        return Failure{"no Wi-Fi device"};
    }
    std::string stored;
    for (const StoredWifi& connection : storedWifi()) {
        if (connection.settings.ssid == network.ssid) {
            stored = connection.path;
            break;
        }
    }
    std::string active;
    if (!stored.empty()) {
        Message reply = bus_.call(nm, nmPath, nm, "ActivateConnection", [&](sd_bus_message* m) {
            return sd_bus_message_append(m, "ooo", stored.c_str(), device->first.c_str(), network.handle.c_str());
        });
        const char* path = nullptr;
        if (reply && sd_bus_message_read(reply.get(), "o", &path) > 0) {
            active = path;
        }
    } else if (enterprise) {
        return Failure{"no stored 802.1X settings for " + network.ssid};
    } else {
        Settings settings = {{"802-11-wireless", {{"ssid", bytes(network.ssid)}}}};
        const std::vector<int>& modes = network.securityModes;
        int mode = modes.empty() ? 0 : *std::max_element(modes.begin(), modes.end());
        if (!password.empty() && mode > 0) {
            addSecurity(settings, mode, password, std::string());
        }
        Message reply = bus_.call(nm, nmPath, nm, "AddAndActivateConnection", [&](sd_bus_message* m) {
            int r = appendSettings(m, settings);
            return r < 0 ? r : sd_bus_message_append(m, "oo", device->first.c_str(), network.handle.c_str());
        });
        const char* connection = nullptr;
        const char* path = nullptr;
        if (reply && sd_bus_message_read(reply.get(), "oo", &connection, &path) > 0) {
            active = path;
        }
    }
    if (active.empty()) {
        return Failure{bus_.lastError()};
    }
    if (!waitForActivation(active)) {
        return Failure{"activation of " + network.ssid + " did not complete"};
    }
    return {};
}

std::vector<NetworkManagerClient::StoredWifi> NetworkManagerClient::storedWifi()
{
    std::vector<StoredWifi> stored;
    Message list = bus_.call(nm, settingsPath, settingsIface, "ListConnections");
    if (!list) {
        return stored;
    }
    for (const std::string& path : linux_bus::readPaths(list.get())) {
        Message reply = bus_.call(nm, path, connectionIface, "GetSettings");
        if (!reply) {
            continue;
        }
        Flat flat;
        readSettings(reply.get(), flat);
        if (flatText(flat, "connection.type") != "802-11-wireless") {
            continue;
        }
        StoredWifi wifi;
        wifi.path = path;
        wifi.settings.ssid = flatText(flat, "802-11-wireless.ssid");
        wifi.settings.securityMode = securityMode(flat);
        auto priority = flat.find("connection.autoconnect-priority");
        const auto* number = priority != flat.end() ? std::get_if<std::int32_t>(&priority->second) : nullptr;
        wifi.priority = number != nullptr ? *number : 0;
        int mode = wifi.settings.securityMode;
        if (mode >= 4) {
            std::vector<std::string> eap = flatList(flat, "802-1x.eap");
            wifi.settings.eapMethod = eap.empty() ? std::string() : eap.front();
            wifi.settings.name8021X = flatText(flat, "connection.id");
        }
        wifi.settings.passphrase = secretOf(flat, mode);
        if (wifi.settings.passphrase.empty() && mode != 0) {
            // NetworkManager hands secrets out separately.
            const char* setting = mode >= 4 ? "802-1x" : "802-11-wireless-security";
            Message secrets = bus_.call(nm, path, connectionIface, "GetSecrets", [setting](sd_bus_message* m) {
                return sd_bus_message_append(m, "s", setting);
            });
            if (secrets) {
                readSettings(secrets.get(), flat);
                wifi.settings.passphrase = secretOf(flat, mode);
            }
        }
        stored.push_back(std::move(wifi));
    }
    return stored;
}

Result<void> NetworkManagerClient::store(const NetworkProbe::WifiSettings& wifi)
{
    int priority = 0;
    for (const StoredWifi& connection : storedWifi()) {
        priority = std::max(priority, connection.priority);
    }
    bool enterprise = wifi.securityMode >= 4 && wifi.securityMode <= 6;
    Setting connection = {{"id", text(enterprise && !wifi.name8021X.empty() ? wifi.name8021X : wifi.ssid)},
                          {"type", text("802-11-wireless")},
                          {"uuid", text(newUuid())},
                          {"autoconnect-priority", int32(priority + 1)}};
    Setting wireless = {{"ssid", bytes(wifi.ssid)}, {"mode", text("infrastructure")}};
    if (wifi.securityMode >= 1 && wifi.securityMode <= 6) {
        wireless.emplace_back("security", text("802-11-wireless-security"));
    }
    Settings settings = {{"connection", connection}, {"802-11-wireless", wireless}};
    addSecurity(settings, wifi.securityMode, wifi.passphrase, wifi.eapMethod);
    Message reply = bus_.call(nm, settingsPath, settingsIface, "AddConnection",
                              [&settings](sd_bus_message* m) { return appendSettings(m, settings); });
    if (!reply) {
        return Failure{bus_.lastError()};
    }
    return {};
}

}  // namespace tvpolicy
