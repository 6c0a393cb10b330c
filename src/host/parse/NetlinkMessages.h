#pragma once

#include <cstddef>

namespace tvpolicy::parse {

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
