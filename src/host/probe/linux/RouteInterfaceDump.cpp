#include "host/probe/linux/RouteInterfaceDump.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <vector>

#include <linux/if.h>
#include <linux/if_addr.h>
#include <linux/if_arp.h>
#include <linux/if_link.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <sys/socket.h>

#include <tvpolicy/base/OwnedFd.h>

#include "host/parse/RouteInterfaces.h"

namespace route = tvpolicy::parse::route;

// The parsers' numbers are the kernel's.
static_assert(route::done == NLMSG_DONE && route::error == NLMSG_ERROR);
static_assert(route::newLink == RTM_NEWLINK && route::getLink == RTM_GETLINK && route::newAddress == RTM_NEWADDR &&
              route::getAddress == RTM_GETADDR);
static_assert(route::request == NLM_F_REQUEST && route::dump == NLM_F_DUMP && route::interrupted == NLM_F_DUMP_INTR);
static_assert(route::linkHeaderSize == sizeof(ifinfomsg) && route::addressHeaderSize == sizeof(ifaddrmsg) &&
              route::attributeHeaderSize == sizeof(rtattr) && route::attributeHeaderSize == RTA_LENGTH(0));
static_assert(offsetof(ifinfomsg, ifi_type) == 2 && offsetof(ifinfomsg, ifi_index) == 4 &&
              offsetof(ifinfomsg, ifi_flags) == 8 && offsetof(ifaddrmsg, ifa_index) == 4);
static_assert(route::linkAddress == IFLA_ADDRESS && route::linkName == IFLA_IFNAME &&
              route::linkOperState == IFLA_OPERSTATE && route::linkExtMask == IFLA_EXT_MASK &&
              route::skipStats == RTEXT_FILTER_SKIP_STATS);
static_assert(route::addressAddress == IFA_ADDRESS && route::addressLocal == IFA_LOCAL &&
              route::addressLabel == IFA_LABEL);
static_assert(route::familyIPv4 == AF_INET && route::familyIPv6 == AF_INET6 && route::typeEther == ARPHRD_ETHER);
static_assert(route::lowerUp == IFF_LOWER_UP && route::operUnknown == IF_OPER_UNKNOWN && route::operUp == IF_OPER_UP);

namespace tvpolicy::probe {

namespace {

constexpr int dumpAttempts = 3;
// Large enough for the biggest datagram the kernel builds for a dump (it sizes them by the
// largest read it has seen, up to 32 KiB).
constexpr std::size_t bufferSize = std::size_t{32} * 1024;

std::atomic<std::uint32_t> lastSequence{0};

// Asks for one dump and reads its replies into `dump`; false when the exchange failed.
bool takeDump(int socket, std::uint16_t type, parse::RouteDump& dump, std::vector<unsigned char>& buffer)
{
    std::uint32_t sequence = ++lastSequence;
    std::vector<unsigned char> request = parse::routeDumpRequest(type, sequence);
    sockaddr_nl kernel{};
    kernel.nl_family = AF_NETLINK;
    ssize_t sent = -1;
    do {
        sent = ::sendto(socket, request.data(), request.size(), 0, reinterpret_cast<sockaddr*>(&kernel), sizeof kernel);
    } while (sent < 0 && errno == EINTR);
    if (sent != static_cast<ssize_t>(request.size())) {
        return false;
    }
    while (!dump.finished()) {
        // MSG_TRUNC: the datagram's whole length, so that one cut short shows.
        ssize_t got = ::recv(socket, buffer.data(), buffer.size(), MSG_TRUNC);
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0 || static_cast<std::size_t>(got) > buffer.size()) {
            return false;
        }
        parse::readRouteDump(buffer.data(), static_cast<std::size_t>(got), sequence, dump);
    }
    return dump.done && dump.error == 0 && !dump.malformed;
}

}  // namespace

std::optional<parse::RouteDump> dumpRouteInterfaces()
{
    OwnedFd socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE));
    if (!socket.valid()) {
        return std::nullopt;
    }
    std::vector<unsigned char> buffer(bufferSize);
    parse::RouteDump dump;
    for (int attempt = 1; attempt <= dumpAttempts; ++attempt) {
        parse::RouteDump links;
        parse::RouteDump addresses;
        if (!takeDump(socket.get(), route::getLink, links, buffer) ||
            !takeDump(socket.get(), route::getAddress, addresses, buffer)) {
            return std::nullopt;
        }
        dump.links = std::move(links.links);
        dump.addresses = std::move(addresses.addresses);
        dump.done = true;
        dump.interrupted = links.interrupted || addresses.interrupted;
        if (!dump.interrupted && parse::strayRouteAddresses(dump) == 0) {
            break;
        }
    }
    return dump;
}

}  // namespace tvpolicy::probe
