// Datagrams of a routing netlink dump of links and addresses, and the interface list built from
// them: every link and address takes a whole message, every address of a listed link gives one
// entry after the links' own, every entry carries its interface's hardware and link state, and
// every address text reads back as an address of its family; a request read back is no reply.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <arpa/inet.h>
#include <sys/socket.h>

#include "host/parse/RouteDump.h"
#include "host/parse/RouteInterfaces.h"

namespace {

using tvpolicy::NetworkProbe;

void require(bool rule)
{
    if (!rule) {
        std::abort();
    }
}

bool readsBack(const NetworkProbe::AddressEntry& entry)
{
    unsigned char bytes[16];
    if (entry.family == NetworkProbe::Family::IPv4) {
        return ::inet_pton(AF_INET, entry.address.c_str(), bytes) == 1;
    }
    if (entry.family == NetworkProbe::Family::IPv6) {
        return ::inet_pton(AF_INET6, entry.address.c_str(), bytes) == 1;
    }
    return entry.address.empty();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tvpolicy::parse::RouteDump dump;
    tvpolicy::parse::readRouteDump(data, size, 1, dump);
    require(dump.links.size() <= size / 32 && dump.addresses.size() <= size / 24 && dump.error >= 0);
    for (const auto& link : dump.links) {
        require(link.name.size() <= 16 && link.name.find('\0') == std::string::npos);
        require(link.hardwareAddress.size() <= 32 && (link.hasHardwareAddress || link.hardwareAddress.empty()));
    }
    auto entries =
        tvpolicy::parse::routeInterfaceEntries(dump, [](const std::string& name) { return name == "wlan0"; });
    require(entries.size() == dump.links.size() + dump.addresses.size() - tvpolicy::parse::strayRouteAddresses(dump));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& entry = entries[i];
        require(i >= dump.links.size() || entry.name == dump.links[i].name);
        require(entry.hardware && entry.link && readsBack(entry));
        require(entry.hardware->macAddress.empty() || entry.hardware->macAddress.size() == 17);
        require(!entry.link->active || entry.link->error == 0);
    }
    // A request is no reply: read as one, it adds nothing.
    for (std::uint16_t type : {tvpolicy::parse::route::getLink, tvpolicy::parse::route::getAddress}) {
        auto request = tvpolicy::parse::routeDumpRequest(type, static_cast<std::uint32_t>(size));
        tvpolicy::parse::RouteDump echo;
        tvpolicy::parse::readRouteDump(request.data(), request.size(), static_cast<std::uint32_t>(size), echo);
        require(echo.links.empty() && echo.addresses.empty() && !echo.finished());
    }
    return 0;
}
