#include "peers/LoopbackPeers.h"

#include <chrono>
#include <stdexcept>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <tvpolicy/agent/TXTRecord.h>
#include <tvpolicy/host/NameServer.h>

#include "support/RunCli.h"

namespace peers {

namespace {

// A self-signed certificate for 127.0.0.1 (also as its subject's IP address, which a client
// that trusts it checks), made once per test run.
const testing_support::TempDir& certificateDir()
{
    static testing_support::TempDir dir;
    static const bool made = [] {
        auto result = testing_support::runProgram(
            {"openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "1", "-subj", "/CN=127.0.0.1",
             "-addext", "subjectAltName=IP:127.0.0.1", "-keyout", (dir.path() / "key.pem").string(), "-out",
             (dir.path() / "cert.pem").string()});
        if (result.exitCode != 0) {
            throw std::runtime_error("openssl could not make a certificate: " + result.err);
        }
        return true;
    }();
    static_cast<void>(made);
    return dir;
}

// Binds `fd` to a port of 127.0.0.1 that the kernel picks, and returns that port.
int bindLoopback(int fd)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    if (fd < 0 || ::bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0 ||
        ::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
        throw std::runtime_error("cannot bind a loopback port");
    }
    return ntohs(address.sin_port);
}

// A UDP port that was free a moment ago.
int freeUdpPort()
{
    int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    int port = bindLoopback(fd);
    ::close(fd);
    return port;
}

}  // namespace

std::string SeenRequest::header(const std::string& name) const
{
    auto found = headers.find(name);
    return found != headers.end() ? found->second : "(none)";
}

std::string HttpPeer::certificateFile() { return (certificateDir().path() / "cert.pem").string(); }

HttpPeer::HttpPeer(bool tls) : tls_(tls)
{
    if (tls) {
        const auto& dir = certificateDir().path();
        server_ = std::make_unique<httplib::SSLServer>((dir / "cert.pem").c_str(), (dir / "key.pem").c_str());
    } else {
        server_ = std::make_unique<httplib::Server>();
    }
    auto echo = [this](const httplib::Request& req, httplib::Response& res) {
        remember(req);
        res.set_header("Set-Cookie", "session=abc; Path=/");
        res.set_content("hello", "text/plain");
    };
    server_->Get("/echo", echo);
    server_->Post("/echo", echo);
    server_->Get(R"(/status/(\d+))", [this](const httplib::Request& req, httplib::Response& res) {
        remember(req);
        res.status = std::stoi(req.matches[1]);
        res.set_content("status", "text/plain");
    });
    server_->Get("/preamble", [](const httplib::Request&, httplib::Response& res) {
        res.set_content("line\r\n\r\nrest", "text/plain");
    });
    server_->Get("/cookie-in-body", [](const httplib::Request&, httplib::Response& res) {
        res.set_content("x\r\nSet-Cookie: fromBody\r\ny", "text/plain");
    });
    server_->Get("/moved", [](const httplib::Request&, httplib::Response& res) {
        res.set_redirect("/echo");
        res.set_content("moved", "text/plain");
    });
    server_->Get("/binary", [this](const httplib::Request& req, httplib::Response& res) {
        remember(req);
        std::string body;
        for (int round = 0; round < 4; ++round) {
            for (int byte = 0; byte < 256; ++byte) {
                body.push_back(static_cast<char>(byte));
            }
        }
        res.set_content(body, "application/octet-stream");
    });
    server_->Get("/endless", [this](const httplib::Request&, httplib::Response& res) {
        res.set_chunked_content_provider("application/octet-stream", [this](std::size_t, httplib::DataSink& sink) {
            static const std::string block(64 << 10, 'e');
            std::lock_guard<std::mutex> lock(mutex_);
            return !stopping_ && sink.write(block.data(), block.size());
        });
    });
    auto stalled = [this](const httplib::Request&, httplib::Response& res) {
        std::unique_lock<std::mutex> lock(mutex_);
        released_.wait_for(lock, std::chrono::seconds(60), [this] { return stopping_; });
        res.set_content("late", "text/plain");
    };
    server_->Get("/stalled", stalled);
    server_->Post("/stalled", stalled);
    port_ = server_->bind_to_any_port("127.0.0.1");
    thread_ = std::thread([this] { server_->listen_after_bind(); });
    while (!server_->is_running()) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

HttpPeer::~HttpPeer()
{
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stopping_ = true;
    }
    released_.notify_all();
    server_->stop();
    thread_.join();
}

std::string HttpPeer::url(const std::string& path) const
{
    return std::string(tls_ ? "https" : "http") + "://127.0.0.1:" + std::to_string(port_) + path;
}

SeenRequest HttpPeer::seen() const
{
    std::lock_guard<std::mutex> lock(mutex_);
    return seen_;
}

void HttpPeer::remember(const httplib::Request& request)
{
    std::lock_guard<std::mutex> lock(mutex_);
    int count = seen_.count + 1;
    seen_ = SeenRequest{
        request.method, request.path, {request.headers.begin(), request.headers.end()}, request.body, count};
}

Dnsmasq::Dnsmasq(const std::vector<std::string>& records) : port_(freeUdpPort())
{
    std::vector<std::string> argv = {"dnsmasq",
                                     "--keep-in-foreground",
                                     "--no-resolv",
                                     "--no-hosts",
                                     "--no-daemon",
                                     "--bind-interfaces",
                                     "--listen-address=127.0.0.1",
                                     "--port=" + std::to_string(port_),
                                     "--pid-file=",
                                     "--user=root",
                                     "--txt-record=_ready._tcp.test,up=1"};
    argv.insert(argv.end(), records.begin(), records.end());
    process_ = std::make_unique<testing_support::ChildProcess>(argv);
    // Until it answers: a query to a port nobody has bound yet is refused at once.
    auto server = tvpolicy::NameServer::parse(address());
    for (int attempt = 0; attempt < 500; ++attempt) {
        if (!com::torvane::TXTRecord::lookup("ready", "tcp", "test", server)->getValue("up").empty()) {
            return;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw std::runtime_error("dnsmasq did not start");
}

SilentNameServer::SilentNameServer() : fd_(::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0)), port_(bindLoopback(fd_)) {}

SilentNameServer::~SilentNameServer() { ::close(fd_); }

}  // namespace peers
