#include "host/parse/RouteInterfaces.h"

#include <cerrno>
#include <unordered_map>

#include <arpa/inet.h>
#include <sys/socket.h>

#include "host/parse/NetText.h"

namespace tvpolicy::parse {

namespace {

using Entry = NetworkProbe::AddressEntry;
using Family = NetworkProbe::Family;

struct Details {
    NetworkProbe::Hardware hardware;
    NetworkProbe::LinkState link;
};

Details detailsOf(const RouteLink& link, const WirelessTest& wireless)
{
    Details details;
    const auto* bytes = reinterpret_cast<const unsigned char*>(link.hardwareAddress.data());
    details.hardware.macAddress = macAddressText(bytes, link.hardwareAddress.size());
    if (wireless && wireless(link.name)) {
        details.hardware.medium = "Wireless";
    } else if (link.type == route::typeEther) {
        details.hardware.medium = "Wired";
    }
    details.link.active =
        (link.flags & route::lowerUp) != 0 && (link.operState == route::operUp || link.operState == route::operUnknown);
    return details;
}

// The text of an IPv4 or IPv6 address; empty for another family or a wrong size.
std::string addressText(const RouteAddress& address)
{
    int family = address.family == route::familyIPv4 ? AF_INET : address.family == route::familyIPv6 ? AF_INET6 : -1;
    std::size_t size = family == AF_INET ? 4 : 16;
    char text[INET6_ADDRSTRLEN] = "";
    if (family < 0 || !address.hasAddress || address.address.size() != size ||
        ::inet_ntop(family, address.address.data(), text, sizeof text) == nullptr) {
        return std::string();
    }
    return text;
}

Family familyOf(const RouteAddress& address)
{
    if (!address.hasAddress) {
        return Family::Other;
    }
    return address.family == route::familyIPv4   ? Family::IPv4
           : address.family == route::familyIPv6 ? Family::IPv6
                                                 : Family::Other;
}

std::unordered_map<std::int32_t, std::size_t> linksByIndex(const RouteDump& dump)
{
    std::unordered_map<std::int32_t, std::size_t> byIndex;
    for (std::size_t i = 0; i < dump.links.size(); ++i) {
        byIndex.emplace(dump.links[i].index, i);
    }
    return byIndex;
}

}  // namespace

std::vector<Entry> routeInterfaceEntries(const RouteDump& dump, const WirelessTest& wireless)
{
    std::vector<Entry> entries;
    entries.reserve(dump.links.size() + dump.addresses.size());
    std::vector<Details> details;
    details.reserve(dump.links.size());
    std::unordered_map<std::string, std::size_t> byName;
    for (const RouteLink& link : dump.links) {
        byName.emplace(link.name, details.size());
        details.push_back(detailsOf(link, wireless));
        Entry entry;
        entry.name = link.name;
        entry.flags = link.flags;
        entry.family = link.hasHardwareAddress ? Family::Link : Family::Other;
        entry.hardwareCandidate = link.hasHardwareAddress && link.type == route::typeEther;
        entries.push_back(std::move(entry));
    }
    std::unordered_map<std::int32_t, std::size_t> byIndex = linksByIndex(dump);
    for (const RouteAddress& address : dump.addresses) {
        auto owner = byIndex.find(address.index);
        if (owner == byIndex.end()) {
            continue;
        }
        const RouteLink& link = dump.links[owner->second];
        Entry entry;
        entry.name = address.hasLabel ? address.label : link.name;
        entry.flags = link.flags;
        entry.family = familyOf(address);
        entry.address = addressText(address);
        entries.push_back(std::move(entry));
    }
    for (Entry& entry : entries) {
        auto found = byName.find(entry.name);
        if (found != byName.end()) {
            entry.hardware = details[found->second].hardware;
            entry.link = details[found->second].link;
        } else {
            entry.hardware = NetworkProbe::Hardware();
            entry.link = NetworkProbe::LinkState{false, ENOENT};
        }
    }
    return entries;
}

std::size_t strayRouteAddresses(const RouteDump& dump)
{
    std::unordered_map<std::int32_t, std::size_t> byIndex = linksByIndex(dump);
    std::size_t stray = 0;
    for (const RouteAddress& address : dump.addresses) {
        stray += byIndex.count(address.index) == 0 ? 1 : 0;
    }
    return stray;
}

}  // namespace tvpolicy::parse
