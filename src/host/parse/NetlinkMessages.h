#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

namespace tvpolicy::parse {

/// The routing netlink numbers this parser reads, as the kernel defines them (the Linux backend
/// checks them against <linux/netlink.h> and <linux/rtnetlink.h> at compile time).
constexpr std::size_t netlinkHeaderSize = 16;        // sizeof(struct nlmsghdr)
constexpr std::uint16_t netlinkNewAddress = 20;      // RTM_NEWADDR
constexpr std::uint16_t netlinkDeletedAddress = 21;  // RTM_DELADDR

/// One message of a datagram: its header's fields (in the host's byte order) and the bytes
/// after the header, within the length the header gives.
struct NetlinkMessage {
    std::uint16_t type = 0;
    std::uint16_t flags = 0;
    std::uint32_t sequence = 0;
    const unsigned char* payload = nullptr;
    std::size_t payloadSize = 0;
};

/// Hands each whole message of a datagram to `visit`, in order, until `visit` returns false.
/// Each message starts with a 16-byte header (length, type, flags, sequence, port) and is padded
/// to a multiple of 4 bytes. Returns false when the datagram ended in a header whose length is
/// impossible (too short, or past the end); the messages before it were visited.
bool walkNetlink(const unsigned char* data, std::size_t size, const std::function<bool(const NetlinkMessage&)>& visit);

/// What one datagram read from a routing netlink socket holds.
struct NetlinkSummary {
    /// Messages that add or remove an interface address (types 20 and 21).
    int addressChanges = 0;
    /// The datagram ended in a header whose length is impossible (too short, or past the end);
    /// the messages before it are counted.
    bool malformed = false;
};

/// Counts the address changes among the messages of a datagram.
NetlinkSummary summarizeNetlink(const unsigned char* data, std::size_t size);

}  // namespace tvpolicy::parse
