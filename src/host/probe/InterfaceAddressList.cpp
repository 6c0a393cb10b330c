#include "host/probe/InterfaceAddressList.h"

#include <memory>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace tvpolicy::probe {

namespace {

using Family = NetworkProbe::Family;

struct IfaddrsFree {
    void operator()(ifaddrs* list) const { ::freeifaddrs(list); }
};

}  // namespace

std::vector<NetworkProbe::AddressEntry> addressEntries(const ifaddrs* list, int linkFamily,
                                                       HardwareCandidateRule hardwareCandidate)
{
    std::vector<NetworkProbe::AddressEntry> entries;
    for (const ifaddrs* item = list; item != nullptr; item = item->ifa_next) {
        NetworkProbe::AddressEntry entry;
        entry.name = item->ifa_name != nullptr ? item->ifa_name : "";
        entry.flags = item->ifa_flags;
        entry.hardwareCandidate = hardwareCandidate(*item);
        const sockaddr* address = item->ifa_addr;
        char text[INET6_ADDRSTRLEN] = "";
        if (address == nullptr) {
            entry.family = Family::Other;
        } else if (address->sa_family == AF_INET) {
            entry.family = Family::IPv4;
            if (::inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in*>(address)->sin_addr, text, sizeof text)) {
                entry.address = text;
            }
        } else if (address->sa_family == AF_INET6) {
            entry.family = Family::IPv6;
            if (::inet_ntop(AF_INET6, &reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr, text, sizeof text)) {
                entry.address = text;
            }
        } else if (address->sa_family == linkFamily) {
            entry.family = Family::Link;
        }
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::optional<std::vector<NetworkProbe::AddressEntry>> interfaceAddressList(int linkFamily,
                                                                            HardwareCandidateRule hardwareCandidate)
{
    ifaddrs* raw = nullptr;
    if (::getifaddrs(&raw) != 0) {
        return std::nullopt;
    }
    std::unique_ptr<ifaddrs, IfaddrsFree> list(raw);
    return addressEntries(raw, linkFamily, hardwareCandidate);
}

}  // namespace tvpolicy::probe
