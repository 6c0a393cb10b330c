#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tvpolicy::parse {

/// One socket of a socket-diagnostics dump.
struct DiagSocket {
    int family = 0;  ///< 2 for IPv4, 10 for IPv6
    int state = 0;   ///< the kernel's TCP state number (10 listen, 7 closed: an unconnected UDP socket)
    unsigned localPort = 0;
};

/// What one datagram of a socket-diagnostics dump holds.
struct DiagBatch {
    std::vector<DiagSocket> sockets;
    /// The dump ended (a done message came).
    bool done = false;
    /// The kernel refused the request: its error number (positive); 0 when none came.
    int error = 0;
    /// A message was cut short or had an impossible length; what came before it is kept.
    bool malformed = false;
};

/// The request for a dump of the sockets of `family` (2 or 10) and `protocol` (6 TCP, 17 UDP)
/// in the states of the bit mask `states`: a netlink message of type 20 (by family) with the
/// request and dump flags, sequence number `sequence`, in the host's byte order.
std::vector<unsigned char> sockDiagRequest(int family, int protocol, std::uint32_t states, std::uint32_t sequence);

/// Reads the messages of one datagram of the dump: each starts with a 16-byte header (length,
/// type, flags, sequence, port, in the host's byte order) and is padded to a multiple of 4
/// bytes; a socket message carries its family and state in its first bytes and the local port
/// in network byte order at offset 4.
DiagBatch parseSockDiag(const unsigned char* data, std::size_t size);

}  // namespace tvpolicy::parse
