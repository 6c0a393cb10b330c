#pragma once

#include <cstddef>
#include <string>

#include <sys/types.h>

#include <tvpolicy/export.h>

namespace com::torvane {

/// A blocking TCP connection with a bounded connect, for direct connections to servers.
///
/// Every problem is one timestamped line on the standard log stream (std::clog) and a false
/// result (or a negative count from send and receive); nothing throws. The descriptor is
/// closed by close() or the destructor.
class TVPOLICY_API StreamSocket {
public:
    StreamSocket();
    virtual ~StreamSocket();
    StreamSocket(const StreamSocket&) = delete;
    StreamSocket& operator=(const StreamSocket&) = delete;

    /// A new IPv6 socket bound to `port` on every address, accepting IPv4 peers as well. A
    /// socket this object held before is closed first.
    virtual bool bind(int port);
    /// Binds to the dotted IPv4 `address` and `port`; any other form of address is refused
    /// with the "inet_aton problem with '...'" line. Binds the socket this object holds, or a
    /// new IPv4 socket when it holds none.
    virtual bool bind(const char* address, int port);
    /// Tries every address of `host` in the resolver's order, each with a non-blocking connect
    /// that may take at most 10 seconds; the first that connects wins and the socket is
    /// switched back to blocking, with a 10-second receive time-out. A socket this object held
    /// before, and the socket of every address that failed, is closed.
    virtual bool connect(const char* host, int port);
    /// One send of `length` bytes. A peer that has gone away gives -1 (EPIPE), never a signal.
    virtual ssize_t send(const void* data, size_t length);
    /// One recv into `buffer` of at most `length` bytes; -1 (EINVAL) for a negative length.
    virtual ssize_t receive(char* buffer, int length);
    /// Shuts the connection down both ways and closes it; does nothing without one.
    virtual void close();
    virtual int getSocket();
    /// Sets or clears the non-blocking flag.
    virtual bool setBlocking(bool blocking);

    /// The peer's host name (looked up by address; the numeric address when it has none);
    /// empty when not connected.
    std::string getPeerName();

protected:
    char host[256];
    int socket;
};

/// Logs `message`, ":" and the system's text for `errorNumber` on one timestamped line.
TVPOLICY_API void printError(const std::string& message, int errorNumber);

}  // namespace com::torvane
