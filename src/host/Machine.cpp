#include <tvpolicy/host/Machine.h>

#include <algorithm>
#include <iostream>
#include <optional>
#include <vector>

#include <tvpolicy/base/Timestamp.h>
#include <tvpolicy/base/Utilities.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/NetworkInterface.h>
#include "base/LogLine.h"

namespace {

std::string withoutNewlines(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '\n'), text.end());
    return text;
}

// Identity strings are read into 128-byte buffers: at most 127 characters survive.
std::string identityText(const std::optional<std::string>& value)
{
    return value ? value->substr(0, 127) : std::string();
}

}  // namespace

std::string Machine::getOSVersion()
{
    std::string version = withoutNewlines(tvpolicy::currentHost().osProductVersion());
    tvi::LogLine(std::cout) << "Version = " << version;
    return version;
}

std::string Machine::getOSString()
{
    const tvpolicy::HostProbe& host = tvpolicy::currentHost();
    return withoutNewlines(host.osProductName()) + " " + withoutNewlines(host.osProductVersion());
}

std::string Machine::getHostName()
{
    std::string node = tvpolicy::currentHost().nodeName();
    std::string dot = ".";
    std::vector<std::string> words;
    split(node, dot, words);
    return words.empty() ? std::string() : words.front();
}

std::string Machine::getHWDescription() { return tvpolicy::currentHost().machineArchitecture(); }

std::string Machine::getHardwareDesc()
{
    tvpolicy::HostProbe::HardwareIdentity identity = tvpolicy::currentHost().hardwareIdentity();
    std::string description = identity.manufacturer.value_or(std::string());
    for (const std::optional<std::string>* part : {&identity.productName, &identity.version}) {
        if (*part) {
            description += " " + **part;
        }
    }
    return description;
}

std::string Machine::getSystemUUID() { return identityText(tvpolicy::currentHost().hardwareIdentity().uuid); }

std::string Machine::getSystemSerialNumber()
{
    return identityText(tvpolicy::currentHost().hardwareIdentity().serialNumber);
}

namespace {

// The inventory of this host for the length of one call.
class Inventory {
public:
    Inventory() { com::torvane::api::NetworkInterface::getInstances(interfaces); }
    ~Inventory() { com::torvane::api::NetworkInterface::freeInstances(interfaces); }
    Inventory(const Inventory&) = delete;
    Inventory& operator=(const Inventory&) = delete;

    com::torvane::api::NetworkInterfaceMap interfaces;
};

}  // namespace

void Machine::getInterfaces(std::vector<std::string>& macs, std::vector<std::string>& ips,
                            std::vector<std::string>& descriptions, std::vector<std::string>& media)
{
    Inventory inventory;
    for (const auto& [key, interface] : inventory.interfaces) {
        macs.push_back(interface->getMACAddress());
        ips.push_back(interface->getIPv4Address());
        descriptions.push_back(interface->getDescription());
        media.push_back(interface->getMedium());
    }
}

std::string Machine::getMACAddress(std::string)
{
    Inventory inventory;
    std::string query;
    for (const auto& [key, interface] : inventory.interfaces) {
        if (!query.empty()) {
            query += "&";
        }
        query += "hw_desc=" + interface->getName() + "&mac=" + interface->getMACAddress() +
                 "&hw_ip=" + interface->getIPv4Address();
        if (!interface->getMedium().empty()) {
            query += "&hw_media=" + interface->getMedium();
        }
    }
    return query;
}

void Machine::launchBrowser(std::string url) { tvpolicy::currentHost().openURL(url); }

void Machine::showMessage(std::string, std::string, std::string) {}

void Machine::shutdown() {}
void Machine::restart() {}
void Machine::logOut() {}
void Machine::clearBrowserCache() {}
void Machine::clearDNSCache() {}
void Machine::enableAutoUpdate() {}
void Machine::disableEthernetBridge() {}
void Machine::enablePing() {}
void Machine::enableFirewall() {}
void Machine::addUser(std::string, std::string) {}
void Machine::enableDHCP() {}
void Machine::sleep(long) {}
void Machine::setHostName(std::string) {}
bool Machine::hotFixInstalled(std::string) { return false; }
bool Machine::updatesInstalled() { return false; }
bool Machine::restartService(std::string) { return false; }
int Machine::execute(std::string, std::string) { return 0; }
std::string Machine::getSystemAssetTag() { return std::string(); }
std::string Machine::getJoinedDomain() { return std::string(); }
