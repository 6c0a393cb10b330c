#pragma once

#include <cstddef>
#include <cstdint>

namespace tvpolicy::parse {

/// The routing netlink numbers this parser reads, as the kernel defines them (the Linux backend
/// checks them against <linux/netlink.h> and <linux/rtnetlink.h> at compile time).
constexpr std::size_t netlinkHeaderSize = 16;        // sizeof(struct nlmsghdr)
constexpr std::uint16_t netlinkNewAddress = 20;      // RTM_NEWADDR
constexpr std::uint16_t netlinkDeletedAddress = 21;  // RTM_DELADDR

/// What one datagram read from a routing netlink socket holds.
struct NetlinkSummary {
    /// Messages that add or remove an interface address (types 20 and 21).
    int addressChanges = 0;
    /// The datagram ended in a header whose length is impossible (too short, or past the end);
    /// the messages before it are counted.
    bool malformed = false;
};

/// Walks the messages of a datagram: each starts with a 16-byte header (length, type, flags,
/// sequence, port, in the host's byte order) and is padded to a multiple of 4 bytes.
NetlinkSummary summarizeNetlink(const unsigned char* data, std::size_t size);

}  // namespace tvpolicy::parse
