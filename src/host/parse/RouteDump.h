#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// The replies of a routing netlink socket to a dump of the interfaces (links) and of their
// addresses, read into plain values. Pure and OS-neutral: the numbers are the kernel's, which
// the Linux backend checks against its headers at compile time.
namespace tvpolicy::parse {

namespace route {
constexpr std::uint16_t done = 3;            // NLMSG_DONE
constexpr std::uint16_t error = 2;           // NLMSG_ERROR
constexpr std::uint16_t newLink = 16;        // RTM_NEWLINK
constexpr std::uint16_t getLink = 18;        // RTM_GETLINK
constexpr std::uint16_t newAddress = 20;     // RTM_NEWADDR
constexpr std::uint16_t getAddress = 22;     // RTM_GETADDR
constexpr std::uint16_t request = 0x1;       // NLM_F_REQUEST
constexpr std::uint16_t dump = 0x300;        // NLM_F_DUMP (NLM_F_ROOT | NLM_F_MATCH)
constexpr std::uint16_t interrupted = 0x10;  // NLM_F_DUMP_INTR

constexpr std::size_t linkHeaderSize = 16;      // sizeof(struct ifinfomsg)
constexpr std::size_t addressHeaderSize = 8;    // sizeof(struct ifaddrmsg)
constexpr std::size_t attributeHeaderSize = 4;  // sizeof(struct rtattr)

constexpr std::uint16_t linkAddress = 1;      // IFLA_ADDRESS
constexpr std::uint16_t linkName = 3;         // IFLA_IFNAME
constexpr std::uint16_t linkOperState = 16;   // IFLA_OPERSTATE
constexpr std::uint16_t linkExtMask = 29;     // IFLA_EXT_MASK
constexpr std::uint32_t skipStats = 1u << 3;  // RTEXT_FILTER_SKIP_STATS

constexpr std::uint16_t addressAddress = 1;  // IFA_ADDRESS
constexpr std::uint16_t addressLocal = 2;    // IFA_LOCAL
constexpr std::uint16_t addressLabel = 3;    // IFA_LABEL

constexpr std::uint8_t familyIPv4 = 2;      // AF_INET
constexpr std::uint8_t familyIPv6 = 10;     // AF_INET6
constexpr std::uint16_t typeEther = 1;      // ARPHRD_ETHER
constexpr std::uint32_t lowerUp = 0x10000;  // IFF_LOWER_UP
constexpr std::uint8_t operUnknown = 0;     // IF_OPER_UNKNOWN
constexpr std::uint8_t operUp = 6;          // IF_OPER_UP
}  // namespace route

/// One interface of a link dump.
struct RouteLink {
    std::int32_t index = 0;
    /// The hardware type (1 for Ethernet).
    std::uint16_t type = 0;
    /// The interface flags, with the running, lower-up and dormant bits of the moment.
    std::uint32_t flags = 0;
    /// Up to the first NUL of the name attribute; empty without one.
    std::string name;
    /// The hardware address bytes; a link without the attribute has none.
    std::string hardwareAddress;
    bool hasHardwareAddress = false;
    /// The operational state (RFC 2863 numbering); unknown without the attribute.
    std::uint8_t operState = route::operUnknown;
};

/// One address of an address dump.
struct RouteAddress {
    std::uint8_t family = 0;
    std::int32_t index = 0;
    /// The address bytes: the local address when the message names one (the other end of a
    /// point-to-point link is then the other), else the address.
    std::string address;
    bool hasAddress = false;
    /// The address's label (IPv4 addresses carry one), up to its first NUL.
    std::string label;
    bool hasLabel = false;
};

/// What the replies to a dump request have held so far.
struct RouteDump {
    std::vector<RouteLink> links;
    std::vector<RouteAddress> addresses;
    /// The end of the dump was read.
    bool done = false;
    /// The kernel flagged the dump as interrupted by a change: it may be inconsistent.
    bool interrupted = false;
    /// The error number the kernel answered with (positive), 0 for none.
    int error = 0;
    /// A message was cut short or impossible: reading stopped there.
    bool malformed = false;

    /// Nothing more is to be read: the end, an error or a malformed message.
    bool finished() const { return done || error != 0 || malformed; }
};

/// Adds the replies in one datagram to `dump`: links and addresses of the messages numbered
/// `sequence` (others are passed over), the end of the dump and errors. A message whose fixed
/// part is cut short makes the dump malformed; attributes that run past their message are
/// passed over, as are attributes of the wrong size.
void readRouteDump(const unsigned char* data, std::size_t size, std::uint32_t sequence, RouteDump& dump);

/// The request for a dump of `type` (route::getLink or route::getAddress) numbered `sequence`,
/// for every address family; a link dump asks the kernel to leave the statistics out.
std::vector<unsigned char> routeDumpRequest(std::uint16_t type, std::uint32_t sequence);

}  // namespace tvpolicy::parse
