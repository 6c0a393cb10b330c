#include <tvpolicy/agent/StreamSocket.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <tvpolicy/base/Timestamp.h>

namespace com::torvane {

namespace {

constexpr int receiveTimeoutSeconds = 10;
constexpr int connectWaitMs = 10000;

struct AddrInfoFree {
    void operator()(addrinfo* list) const { ::freeaddrinfo(list); }
};
using AddrInfoList = std::unique_ptr<addrinfo, AddrInfoFree>;

std::ostream& log() { return tvi::tslog(std::clog); }

// Waits until `fd` turns writable or `timeoutMs` pass; a signal does not cut the wait short.
// The result is poll's: positive when it turned writable (or failed), 0 on time-out, -1 on error.
int waitWritable(int fd, int timeoutMs)
{
    auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    for (;;) {
        pollfd entry{fd, POLLOUT | POLLPRI, 0};
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        int ready = ::poll(&entry, 1, left.count() > 0 ? static_cast<int>(left.count()) : 0);
        if (ready >= 0 || errno != EINTR) {
            return ready;
        }
    }
}

}  // namespace

void printError(const std::string& message, int errorNumber)
{
    log() << message << ":" << std::strerror(errorNumber) << std::endl;
}

StreamSocket::StreamSocket() : host{}, socket(-1) {}

StreamSocket::~StreamSocket() { StreamSocket::close(); }

void StreamSocket::close()
{
    if (socket != -1) {
        ::shutdown(socket, SHUT_RDWR);
        ::close(socket);
        socket = -1;
    }
}

int StreamSocket::getSocket() { return socket; }

bool StreamSocket::setBlocking(bool blocking)
{
    int flags = ::fcntl(socket, F_GETFL, 0);
    if (flags == -1 || ::fcntl(socket, F_SETFL, blocking ? flags & ~O_NONBLOCK : flags | O_NONBLOCK) == -1) {
        printError("Error setting non-blocking flag on socket", errno);
        return false;
    }
    return true;
}

bool StreamSocket::bind(int port)
{
    addrinfo hints{};
    hints.ai_flags = AI_PASSIVE | AI_NUMERICSERV;
    hints.ai_family = AF_INET6;
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_protocol = IPPROTO_TCP;
    addrinfo* found = nullptr;
    int error = ::getaddrinfo(nullptr, std::to_string(port).c_str(), &hints, &found);
    if (error != 0) {
        log() << "Error getting addr info: " << error << std::endl;
        return false;
    }
    AddrInfoList list(found);
    close();
    socket = ::socket(found->ai_family, found->ai_socktype | SOCK_CLOEXEC, found->ai_protocol);
    if (socket == -1) {
        log() << "bind err = " << errno << std::endl;
        return false;
    }
    int off = 0;
    ::setsockopt(socket, IPPROTO_IPV6, IPV6_V6ONLY, &off, sizeof off);
    if (::bind(socket, found->ai_addr, found->ai_addrlen) != 0) {
        log() << "bind err = " << errno << std::endl;
        return false;
    }
    return true;
}

bool StreamSocket::bind(const char* address, int port)
{
    sockaddr_in local{};
    local.sin_family = AF_INET;
    local.sin_port = htons(static_cast<uint16_t>(port));
    if (address == nullptr || ::inet_pton(AF_INET, address, &local.sin_addr) != 1) {
        log() << "inet_aton problem with '" << (address != nullptr ? address : "") << "'" << std::endl;
        return false;
    }
    if (socket == -1) {
        socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, IPPROTO_TCP);
    }
    if (socket == -1 || ::bind(socket, reinterpret_cast<const sockaddr*>(&local), sizeof local) != 0) {
        log() << "bind err = " << errno << std::endl;
        return false;
    }
    return true;
}

bool StreamSocket::connect(const char* hostName, int port)
{
    std::snprintf(host, sizeof host, "%s", hostName != nullptr ? hostName : "");
    close();

    addrinfo hints{};
    hints.ai_flags = AI_ALL | AI_V4MAPPED | AI_NUMERICSERV;
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host, std::to_string(port).c_str(), &hints, &found) != 0) {
        return false;
    }
    AddrInfoList list(found);

    for (addrinfo* address = found; address != nullptr; address = address->ai_next) {
        socket = ::socket(address->ai_family, address->ai_socktype | SOCK_CLOEXEC, address->ai_protocol);
        if (socket == -1) {
            log() << "connect() error: " << std::strerror(errno) << std::endl;
            continue;
        }
        bool connected = false;
        if (setBlocking(false)) {
            timeval timeout{receiveTimeoutSeconds, 0};
            if (::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout) != 0) {
                log() << "setsockopt returned " << std::strerror(errno) << std::endl;
            }
            if (::connect(socket, address->ai_addr, address->ai_addrlen) == 0) {
                connected = true;
            } else if (errno == EINPROGRESS) {
                int ready = waitWritable(socket, connectWaitMs);
                int pending = 0;
                socklen_t length = sizeof pending;
                if (ready == 0) {
                    log() << "StreamSocket::connect() timeout" << std::endl;
                } else if (ready < 0 || ::getsockopt(socket, SOL_SOCKET, SO_ERROR, &pending, &length) != 0) {
                    log() << "connect() error: " << std::strerror(errno) << std::endl;
                } else if (pending != 0) {
                    log() << "connect() error: " << std::strerror(pending) << std::endl;
                } else {
                    connected = true;
                }
            } else {
                log() << "connect() error: " << std::strerror(errno) << std::endl;
            }
        }
        if (connected && setBlocking(true)) {
            return true;
        }
        close();
    }
    return false;
}

ssize_t StreamSocket::send(const void* data, size_t length) { return ::send(socket, data, length, MSG_NOSIGNAL); }

ssize_t StreamSocket::receive(char* buffer, int length)
{
    if (length < 0) {
        errno = EINVAL;
        return -1;
    }
    return ::recv(socket, buffer, static_cast<size_t>(length), 0);
}

std::string StreamSocket::getPeerName()
{
    sockaddr_storage peer{};
    socklen_t length = sizeof peer;
    char name[255] = {0};
    if (::getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &length) != 0 ||
        ::getnameinfo(reinterpret_cast<sockaddr*>(&peer), length, name, sizeof name, nullptr, 0, 0) != 0) {
        return std::string();
    }
    return name;
}

}  // namespace com::torvane
