#include "agent/AddressRenewal.h"

#include <algorithm>
#include <functional>

#include <tvpolicy/host/NetworkInterface.h>
#include <tvpolicy/host/NetworkProbe.h>

namespace tvpolicy::cli::agent {

namespace {

using com::torvane::api::NetworkInterface;
using com::torvane::api::NetworkInterfaceMap;

// Calls `each` with every interface of the inventory, which is freed afterwards.
void forEachInterface(const std::function<void(const NetworkInterface&)>& each)
{
    NetworkInterfaceMap interfaces;
    NetworkInterface::getInstances(interfaces);
    struct Release {
        NetworkInterfaceMap& map;
        ~Release() { NetworkInterface::freeInstances(map); }
    } release{interfaces};
    for (const auto& entry : interfaces) {
        each(*entry.second);
    }
}

}  // namespace

std::vector<std::string> renewAddresses()
{
    std::vector<std::string> names;
    forEachInterface([&names](const NetworkInterface& interface) {
        if (interface.isUp() && !interface.isVirtualGuest() && !interface.getIPv4Address().empty() &&
            std::find(names.begin(), names.end(), interface.getName()) == names.end()) {
            names.push_back(interface.getName());
        }
    });
    std::vector<std::string> asked;
    for (const std::string& name : names) {
        if (tvpolicy::currentNetwork().renewAddress(name)) {
            asked.push_back(name);
        }
    }
    return asked;
}

nlohmann::ordered_json addressesOf(const std::vector<std::string>& names)
{
    nlohmann::ordered_json found = nlohmann::ordered_json::object();
    for (const std::string& name : names) {
        found[name] = nlohmann::ordered_json::array();
    }
    forEachInterface([&found](const NetworkInterface& interface) {
        if (!found.contains(interface.getName())) {
            return;
        }
        std::vector<std::string> v4;
        std::vector<std::string> v6;
        interface.getIPv4Addresses(v4);
        interface.getIPv6Addresses(v6);
        for (const std::string& address : v4) {
            found[interface.getName()].push_back(address);
        }
        for (const std::string& address : v6) {
            found[interface.getName()].push_back(address);
        }
    });
    return found;
}

}  // namespace tvpolicy::cli::agent
