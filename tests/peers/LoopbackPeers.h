#pragma once

#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <httplib.h>

#include "support/ChildProcess.h"
#include "support/TempDir.h"

namespace peers {

/// What the server saw of the last request.
struct SeenRequest {
    std::string method;
    std::string path;
    std::multimap<std::string, std::string> headers;  // names as sent
    std::string body;
    int count = 0;  // requests seen so far

    /// The value of header `name`, "(none)" when it was not sent.
    std::string header(const std::string& name) const;
};

/// A real HTTP (or, with a self-signed certificate made for the test run, HTTPS) server on a
/// loopback port, in this process:
///   /echo       200 "hello", sets the cookie "session=abc; Path=/" (any method)
///   /status/N   answers status N
///   /preamble   "line\r\n\r\nrest"          /cookie-in-body  "x\r\nSet-Cookie: fromBody\r\ny"
///   /moved      302 to /echo with body "moved"
///   /binary     every byte value 0..255, four times
///   /endless    a chunked body that never ends
///   /stalled    sends nothing until the server stops
class HttpPeer {
public:
    explicit HttpPeer(bool tls = false);
    ~HttpPeer();
    HttpPeer(const HttpPeer&) = delete;
    HttpPeer& operator=(const HttpPeer&) = delete;

    std::string url(const std::string& path) const;
    SeenRequest seen() const;
    /// The PEM file of the self-signed certificate a TLS peer serves.
    static std::string certificateFile();

private:
    void remember(const httplib::Request& request);

    std::unique_ptr<httplib::Server> server_;
    int port_ = 0;
    bool tls_;
    std::thread thread_;
    mutable std::mutex mutex_;
    std::condition_variable released_;
    bool stopping_ = false;
    SeenRequest seen_;
};

/// dnsmasq on 127.0.0.1 and a free high port, answering only from its command line:
/// `records` are extra arguments such as "--srv-host=_a._tcp.test,h.test,443,10,20". It is
/// killed when the object ends. The server's address is "127.0.0.1:<port>".
class Dnsmasq {
public:
    explicit Dnsmasq(const std::vector<std::string>& records);

    std::string address() const { return "127.0.0.1:" + std::to_string(port_); }
    int port() const { return port_; }

private:
    int port_;
    std::unique_ptr<testing_support::ChildProcess> process_;
};

/// A UDP port on loopback that takes queries and never answers. Closed when the object ends.
class SilentNameServer {
public:
    SilentNameServer();
    ~SilentNameServer();
    SilentNameServer(const SilentNameServer&) = delete;
    SilentNameServer& operator=(const SilentNameServer&) = delete;

    std::string address() const { return "127.0.0.1:" + std::to_string(port_); }

private:
    int fd_;
    int port_;
};

}  // namespace peers
