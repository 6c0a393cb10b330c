#include "agent/Discovery.h"

#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#include <cerrno>
#include <list>

#include <tvpolicy/agent/SRVRecord.h>
#include <tvpolicy/agent/TXTRecord.h>
#include <tvpolicy/host/HostProbe.h>

#include <tvpolicy/base/OwnedFd.h>

namespace tvpolicy::cli::agent {

namespace {

using com::torvane::SRVRecord;
using com::torvane::TXTRecord;

constexpr int connectTimeoutMs = 5000;
constexpr int stopCheckMs = 100;

struct AddressList {
    addrinfo* first = nullptr;
    ~AddressList() { ::freeaddrinfo(first); }
};

// True when some address of `host` takes a TCP connection on `port` within the time-out; false
// at once when `stop` turns true while it waits.
bool accepts(const std::string& host, unsigned port, const std::atomic<bool>& stop)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    AddressList found;
    if (::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found.first) != 0) {
        return false;
    }
    for (addrinfo* address = found.first; address != nullptr; address = address->ai_next) {
        OwnedFd socket(::socket(address->ai_family, address->ai_socktype | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
        if (socket.get() < 0) {
            continue;
        }
        if (::connect(socket.get(), address->ai_addr, address->ai_addrlen) == 0) {
            return true;
        }
        if (errno != EINPROGRESS) {
            continue;
        }
        struct pollfd writable {
            socket.get(), POLLOUT, 0
        };
        int ready = 0;
        for (int waited = 0; ready == 0 && waited < connectTimeoutMs && !stop; waited += stopCheckMs) {
            ready = ::poll(&writable, 1, stopCheckMs);
        }
        int error = 0;
        socklen_t length = sizeof error;
        if (ready == 1 && ::getsockopt(socket.get(), SOL_SOCKET, SO_ERROR, &error, &length) == 0 && error == 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

Result<std::string> discoverServer(const std::string& service, const std::string& givenDomain, bool allowHttp,
                                   const std::atomic<bool>& stop)
{
    std::string domain = givenDomain.empty() ? tvpolicy::currentHost().dnsDefaultDomain() : givenDomain;
    if (domain.empty()) {
        return Failure{"no server: none is configured and this host has no search domain to discover one in"};
    }
    std::list<const SRVRecord*> records = SRVRecord::lookup(service.c_str(), "tcp", domain.c_str());
    std::string target;
    unsigned port = 0;
    for (const SRVRecord* record : records) {
        if (stop) {
            break;
        }
        if (accepts(record->getName(), record->getPort(), stop)) {
            target = record->getName();
            port = record->getPort();
            break;
        }
    }
    bool any = !records.empty();
    SRVRecord::freeRecords(records);
    const std::string name = "_" + service + "._tcp." + domain;
    if (target.empty()) {
        return Failure{any ? "no server of " + name + " took a connection" : "DNS names no server for " + name};
    }
    std::shared_ptr<TXTRecord> settings = TXTRecord::lookup(service.c_str(), "tcp", domain.c_str());
    std::string scheme = settings ? settings->getValue("scheme") : std::string();
    std::string path = settings ? settings->getValue("path") : std::string();
    scheme = scheme.empty() ? "https" : scheme;
    if (scheme != "https" && !(scheme == "http" && allowHttp)) {
        return Failure{"the server of " + name + " is offered over " + scheme + ", which is not allowed"};
    }
    if (path.empty() || path.front() != '/') {
        path = '/' + path;
    }
    if (path.back() != '/') {
        path += '/';
    }
    if (!target.empty() && target.back() == '.') {
        target.pop_back();
    }
    return scheme + "://" + target + ":" + std::to_string(port) + path;
}

}  // namespace tvpolicy::cli::agent
