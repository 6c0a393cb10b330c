#include <tvpolicy/host/NetworkInterface.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <optional>
#include <sstream>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/host/NetworkProbe.h>

#include "base/LogLine.h"
#include "host/CurrentWifi.h"

namespace com::torvane::api {

namespace {

using tvpolicy::NetworkProbe;

constexpr unsigned int loopbackFlag = 0x8;
// IFF_UP | IFF_POINTOPOINT | IFF_RUNNING | IFF_NOARP: a point-to-point tunnel that is up.
constexpr unsigned int tunnelFlags = 0xD1;
// A failed hardware lookup is retried on the same entry, but not forever: after this many
// failed attempts in a row the entry is passed over.
constexpr int lookupAttempts = 3;

std::string hex(unsigned int value)
{
    std::ostringstream text;
    text << std::hex << value;
    return text.str();
}

bool qualifies(const NetworkProbe::AddressEntry& entry, const NetworkProbe::Hardware& hardware)
{
    bool loopback = (entry.flags & loopbackFlag) != 0;
    if (!loopback && !hardware.macAddress.empty() && !hardware.medium.empty()) {
        return true;
    }
    if ((entry.flags & tunnelFlags) == tunnelFlags) {
        return true;
    }
    tvi::LogLine(std::clog) << "Skipping interface '" << entry.name << "' isLoopback: " << (loopback ? 1 : 0)
                            << " flags: 0x" << hex(entry.flags);
    return false;
}

bool linkUp(const NetworkProbe& network, const NetworkProbe::AddressEntry& entry)
{
    NetworkProbe::LinkState link = entry.link ? *entry.link : network.linkState(entry.name.substr(0, 15));
    if (link.error != 0) {
        std::fprintf(stderr, "Error: %s\n", std::strerror(link.error));
        return false;
    }
    return link.active;
}

// Steps 2 to 5 for one entry: the hardware, when the entry is a candidate and the interface
// qualifies. A failed lookup is retried a bounded number of times.
std::optional<NetworkProbe::Hardware> admittedHardware(const NetworkProbe& network,
                                                       const NetworkProbe::AddressEntry& entry)
{
    if (entry.family != NetworkProbe::Family::IPv4 && !entry.hardwareCandidate) {
        return std::nullopt;
    }
    // What the backend read with the list needs no lookup.
    std::optional<NetworkProbe::Hardware> hardware = entry.hardware;
    for (int attempt = 0; attempt < lookupAttempts && !hardware; ++attempt) {
        hardware = network.interfaceHardware(entry.name);
        if (!hardware) {
            tvi::LogLine(std::clog) << "Skipping interface '" << entry.name << "'";
        }
    }
    if (!hardware) {
        return std::nullopt;
    }
    if (hardware->medium == "Unknown") {
        tvi::LogLine(std::clog) << "medium is unknown; no dictionary found ";
    }
    if (!qualifies(entry, *hardware)) {
        return std::nullopt;
    }
    return hardware;
}

void setWifiNetwork(NetworkInterface& interface)
{
    // Each read as the Wi-Fi manager reads it, with the same log line when there is no interface.
    std::optional<NetworkProbe::WifiStatus> network = tvpolicy::currentWifiStatus("getCurrentProfileName");
    interface.setESSID(network ? network->ssid : std::string());
    network = tvpolicy::currentWifiStatus("getCurrentBSSID");
    std::string bssid = network ? network->bssid : std::string();
    if (bssid.empty()) {
        bssid = getBSSIDFromAirport();
        tvi::LogLine(std::clog) << "bssid from airport " << bssid;
    }
    normalizeMAC(bssid);
    interface.setBSSID(bssid);
}

}  // namespace

void NetworkInterface::getInstances(NetworkInterfaceMap& interfaces)
{
    NetworkProbe& network = tvpolicy::currentNetwork();
    std::optional<std::vector<NetworkProbe::AddressEntry>> entries = network.interfaceAddresses();
    if (!entries) {
        return;
    }
    std::map<std::string, NetworkInterface*> byName;
    std::optional<std::string> suffix;  // the same for every interface: asked once
    for (const NetworkProbe::AddressEntry& entry : *entries) {
        std::optional<NetworkProbe::Hardware> hardware = admittedHardware(network, entry);
        if (!hardware) {
            continue;
        }
        bool up = linkUp(network, entry);
        // An interface has several entries; the first that qualifies wins.
        const std::string& key = hardware->macAddress.empty() ? entry.name : hardware->macAddress;
        if (interfaces.count(key) != 0) {
            continue;
        }
        if (!suffix) {
            suffix = getSearchDomain();
        }
        auto* interface = new NetworkInterface();
        interface->setName(entry.name);
        interface->setDNSSuffix(*suffix);
        interface->setMedium(hardware->medium);
        interface->setUp(up);
        if (hardware->medium == "Wireless" || hardware->medium == "Unknown") {
            setWifiNetwork(*interface);
        }
        interface->setMACAddress(hardware->macAddress);
        interfaces[key] = interface;
        byName.emplace(entry.name, interface);
    }
    for (const NetworkProbe::AddressEntry& entry : *entries) {
        auto found = byName.find(entry.name);
        if (found == byName.end() || entry.address.empty()) {
            continue;
        }
        if (entry.family == NetworkProbe::Family::IPv4) {
            found->second->addIPv4Address(entry.address);
        } else if (entry.family == NetworkProbe::Family::IPv6) {
            found->second->addIPv6Address(entry.address);
        }
    }
}

void NetworkInterface::freeInstances(NetworkInterfaceMap& interfaces)
{
    for (auto& entry : interfaces) {
        delete entry.second;
    }
}

void NetworkInterface::getVirtualGuestInterfaces(NetworkInterfaceMap& interfaces)
{
    getVBoxGuestInterfaces(interfaces);
    getVMwareGuestInterfaces(interfaces);
}

void NetworkInterface::getLibVirtGuestInterfaces(NetworkInterfaceMap&) {}

void NetworkInterface::getIPAddresses(std::vector<std::string>& addresses)
{
    std::optional<std::vector<NetworkProbe::AddressEntry>> entries = tvpolicy::currentNetwork().interfaceAddresses();
    if (!entries) {
        return;
    }
    for (const NetworkProbe::AddressEntry& entry : *entries) {
        if ((entry.family == NetworkProbe::Family::IPv4 || entry.family == NetworkProbe::Family::IPv6) &&
            !entry.address.empty()) {
            addresses.push_back(entry.address);
        }
    }
}

void NetworkInterface::getGlobalDNSSuffixes(std::vector<std::string>& suffixes)
{
    for (const std::string& domain : tvpolicy::currentNetwork().dnsSearchDomains()) {
        if (!domain.empty() && std::find(suffixes.begin(), suffixes.end(), domain) == suffixes.end()) {
            suffixes.push_back(domain);
        }
    }
}

namespace {

void printRenewStatus(bool renewed)
{
    std::printf("Mac-OS-X DHCP Renew Status = %d\n", renewed ? 1 : 0);
    std::fflush(stdout);
}

}  // namespace

void NetworkInterface::renewIPAddress() { printRenewStatus(tvpolicy::currentNetwork().renewAddress(name_)); }

void NetworkInterface::renewIPAddressAuth(const void* authorization)
{
    if (authorization != nullptr) {
        printRenewStatus(tvpolicy::currentNetwork().renewAddressAuthorized(name_, authorization));
    }
}

void NetworkInterface::releaseIPAddress() {}

std::ostream& operator<<(std::ostream& out, const NetworkInterface& interface)
{
    const auto list = [](const std::vector<std::string>& values) {
        std::string text;
        for (const std::string& value : values) {
            text += (text.empty() ? "" : ",") + value;
        }
        return text;
    };
    return out << "NetworkInterface{mac=" << interface.mac_ << " ipv4=[" << list(interface.ipv4_) << "] ipv6=["
               << list(interface.ipv6_) << "] name=" << interface.name_ << " desc=" << interface.description_
               << " medium=" << interface.medium_ << " essid=" << interface.essid_ << " bssid=" << interface.bssid_
               << " suffix=" << interface.dnsSuffix_ << " vm=" << interface.vmName_
               << " guest=" << interface.virtualGuest_ << " up=" << interface.up_ << "}";
}

std::string getSearchDomain() { return tvpolicy::currentNetwork().dnsSuffix(); }

std::string getBSSIDFromAirport()
{
    NetworkProbe& network = tvpolicy::currentNetwork();
    return network.commandOutput(network.bssidCommand(), 256);
}

}  // namespace com::torvane::api
