#include <tvpolicy/agent/SslStreamSocket.h>
#include <tvpolicy/agent/StreamSocket.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include "support/CaptureStream.h"

namespace {

using com::torvane::SslStreamSocket;
using com::torvane::StreamSocket;
using testing_support::CaptureStream;
using testing_support::logMessages;

// A descriptor closed when the test ends.
struct Fd {
    int fd;
    explicit Fd(int value) : fd(value) {}
    Fd(Fd&& other) noexcept : fd(std::exchange(other.fd, -1)) {}
    Fd(const Fd&) = delete;
    Fd& operator=(const Fd&) = delete;
    Fd& operator=(Fd&&) = delete;
    ~Fd()
    {
        if (fd >= 0) {
            ::close(fd);
        }
    }
};

// A TCP socket listening on 127.0.0.1 (a port the kernel picks) with the given backlog.
Fd listener(int backlog, int& port)
{
    Fd server{::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    EXPECT_EQ(::bind(server.fd, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    EXPECT_EQ(::listen(server.fd, backlog), 0);
    ::getsockname(server.fd, reinterpret_cast<sockaddr*>(&address), &length);
    port = ntohs(address.sin_port);
    return server;
}

// A port on loopback where nothing listens.
int closedPort()
{
    int port = 0;
    listener(1, port);
    return port;
}

TEST(StreamSocket, ConnectsSendsAndReceivesOnLoopback)
{
    int port = 0;
    Fd server = listener(4, port);
    SslStreamSocket client;  // the secured type connects exactly as the plain one
    ASSERT_TRUE(client.connect("127.0.0.1", port));
    Fd accepted{::accept(server.fd, nullptr, nullptr)};
    EXPECT_EQ(client.send("ping", 4), 4);
    char buffer[16] = {0};
    ASSERT_EQ(::recv(accepted.fd, buffer, sizeof buffer, 0), 4);
    EXPECT_STREQ(buffer, "ping");
    ASSERT_EQ(::send(accepted.fd, "pong", 4, 0), 4);
    EXPECT_EQ(client.receive(buffer, sizeof buffer), 4);
    EXPECT_EQ(std::string(buffer, 4), "pong");
    EXPECT_EQ(::fcntl(client.getSocket(), F_GETFL) & O_NONBLOCK, 0);  // blocking again
    EXPECT_FALSE(client.getPeerName().empty());
    EXPECT_EQ(client.receive(buffer, -1), -1);

    // The peer goes away: send reports it and the process lives on.
    ::close(std::exchange(accepted.fd, -1));
    ssize_t sent = 0;
    for (int i = 0; i < 100 && sent >= 0; ++i) {
        sent = client.send("x", 1);
    }
    EXPECT_EQ(sent, -1);

    int fd = client.getSocket();
    client.close();
    EXPECT_EQ(client.getSocket(), -1);
    client.close();  // nothing the second time
    EXPECT_EQ(::fcntl(fd, F_GETFD), -1);
    EXPECT_EQ(client.getPeerName(), "");
}

TEST(StreamSocket, LogsWhyAConnectFails)
{
    struct Case {
        const char* what;
        std::string host;
        int port;
        std::vector<std::string> lines;
    };
    int refused = closedPort();
    const std::vector<Case> cases = {
        {"refused", "127.0.0.1", refused, {"connect() error: Connection refused"}},
        {"refused on both loopback addresses", "localhost", refused, {}},
        {"port out of range", "127.0.0.1", 70000, {}},
    };
    for (const Case& c : cases) {
        CaptureStream log(std::clog);
        StreamSocket socket;
        EXPECT_FALSE(socket.connect(c.host.c_str(), c.port)) << c.what;
        EXPECT_EQ(socket.getSocket(), -1) << c.what;
        std::vector<std::string> lines = logMessages(log.text());
        if (!c.lines.empty()) {
            EXPECT_EQ(lines, c.lines) << c.what;
        }
        for (const std::string& line : lines) {
            EXPECT_EQ(line, "connect() error: Connection refused") << c.what;
        }
    }
}

// A listener whose accept queue is full drops further handshakes: the connect never completes
// and gives up after its ten seconds.
TEST(StreamSocket, GivesUpOnAConnectThatNeverCompletes)
{
    int port = 0;
    Fd server = listener(0, port);
    StreamSocket filler;  // takes the only place in the queue
    ASSERT_TRUE(filler.connect("127.0.0.1", port));
    CaptureStream log(std::clog);
    StreamSocket socket;
    EXPECT_FALSE(socket.connect("127.0.0.1", port));
    EXPECT_EQ(logMessages(log.text()), std::vector<std::string>{"StreamSocket::connect() timeout"});
    EXPECT_EQ(socket.getSocket(), -1);
}

TEST(StreamSocket, ConnectsOnDescriptorsAbove1024)
{
    rlimit limit{};
    ::getrlimit(RLIMIT_NOFILE, &limit);
    if (limit.rlim_max < 1200) {
        GTEST_SKIP() << "the hard limit of open files is " << limit.rlim_max;
    }
    rlimit raised{std::max<rlim_t>(limit.rlim_cur, 1200), limit.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &raised), 0);
    std::vector<Fd> filler;
    filler.reserve(1100);
    for (int i = 0; i < 1100; ++i) {
        filler.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    }
    int port = 0;
    Fd server = listener(4, port);
    StreamSocket socket;
    EXPECT_TRUE(socket.connect("127.0.0.1", port));
    EXPECT_GT(socket.getSocket(), 1024);
    socket.close();
    filler.clear();
    ::setrlimit(RLIMIT_NOFILE, &limit);
}

TEST(StreamSocket, BindsEitherForm)
{
    CaptureStream log(std::clog);
    StreamSocket dual;
    ASSERT_TRUE(dual.bind(0));
    ASSERT_EQ(::listen(dual.getSocket(), 4), 0);
    sockaddr_in6 local{};
    socklen_t length = sizeof local;
    ::getsockname(dual.getSocket(), reinterpret_cast<sockaddr*>(&local), &length);
    StreamSocket viaIpv4;
    EXPECT_TRUE(viaIpv4.connect("127.0.0.1", ntohs(local.sin6_port)));  // IPv6 socket, IPv4 client

    StreamSocket onAddress;
    EXPECT_TRUE(onAddress.bind("127.0.0.1", 0));
    StreamSocket taken;
    EXPECT_FALSE(taken.bind("127.0.0.1", ntohs(local.sin6_port)));
    EXPECT_FALSE(taken.bind("localhost", 0));
    EXPECT_FALSE(taken.bind("::1", 0));
    StreamSocket unused;
    EXPECT_FALSE(unused.setBlocking(true));  // nothing to set it on
    int inUse = EADDRINUSE;
    EXPECT_EQ(logMessages(log.text()),
              (std::vector<std::string>{"bind err = " + std::to_string(inUse), "inet_aton problem with 'localhost'",
                                        "inet_aton problem with '::1'",
                                        "Error setting non-blocking flag on socket:Bad file descriptor"}));
}

}  // namespace
