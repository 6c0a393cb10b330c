// tvpolicy agent as a service: what it tells the service manager on the socket of
// $NOTIFY_SOCKET (readiness, the watchdog's keep-alives, its stop), read from a datagram socket
// the test binds as systemd would.
#include <chrono>
#include <csignal>
#include <optional>
#include <string>
#include <vector>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "support/ChildProcess.h"
#include "support/ReferenceServer.h"
#include "support/TempDir.h"

using testing_support::ChildProcess;
using testing_support::ReferenceServer;
using testing_support::TempDir;
using Clock = std::chrono::steady_clock;

namespace {

const std::string examples = std::string(TVPOLICY_SOURCE_DIR) + "/examples/";

class NotifySocket {
public:
    explicit NotifySocket(std::string path)
        : path_(std::move(path)),
          fd_(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path_.copy(address.sun_path, sizeof address.sun_path - 1);
        bound_ = fd_ >= 0 && ::bind(fd_, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    }
    ~NotifySocket()
    {
        if (fd_ >= 0) {
            ::close(fd_);
        }
    }
    NotifySocket(const NotifySocket&) = delete;
    NotifySocket& operator=(const NotifySocket&) = delete;

    bool bound() const { return bound_; }
    const std::string& path() const { return path_; }

    /// The next message, or nothing when none came in time.
    std::optional<std::string> receive(std::chrono::milliseconds timeout)
    {
        struct pollfd ready {
            fd_, POLLIN, 0
        };
        if (::poll(&ready, 1, static_cast<int>(timeout.count())) != 1) {
            return std::nullopt;
        }
        char buffer[4096];
        ssize_t got = ::recv(fd_, buffer, sizeof buffer, 0);
        return got < 0 ? std::nullopt : std::optional<std::string>(std::string(buffer, static_cast<std::size_t>(got)));
    }

    /// Every message of the next `window`, with when it came.
    std::vector<std::pair<Clock::time_point, std::string>> during(std::chrono::milliseconds window)
    {
        std::vector<std::pair<Clock::time_point, std::string>> got;
        const auto end = Clock::now() + window;
        for (auto left = window; left.count() > 0;
             left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now())) {
            if (std::optional<std::string> message = receive(left)) {
                got.emplace_back(Clock::now(), *message);
            }
        }
        return got;
    }

private:
    std::string path_;
    int fd_;
    bool bound_ = false;
};

struct WatchdogCase {
    std::string name;
    std::string environment;  // set in the agent's shell before it starts
    bool keepsAlive;
};

class AgentServiceManager : public ::testing::TestWithParam<WatchdogCase> {};

TEST_P(AgentServiceManager, TellsReadinessKeepAlivesAndStop)
{
    TempDir dir;
    NotifySocket socket((dir.path() / "notify").string());
    ASSERT_TRUE(socket.bound());
    ReferenceServer server({"--policy", examples + "compliant.xml"});
    ASSERT_TRUE(server.started());
    ChildProcess agent(
        {"sh", "-c", "export NOTIFY_SOCKET='" + socket.path() + "' " + GetParam().environment + "; exec \"$0\" \"$@\"",
         TVPOLICY_CLI, "agent", "--allow-http", "--server", server.url(), "--state-dir",
         (dir.path() / "state").string(), "--config", "/dev/null"});
    EXPECT_EQ(socket.receive(std::chrono::seconds(20)), "READY=1");
    ASSERT_TRUE(server.waitForRequests("/agent/report/success", 1, std::chrono::seconds(20)));
    socket.during(std::chrono::milliseconds(250));  // what came during the cycle

    // Between cycles: a keep-alive at least every half of WATCHDOG_USEC (400 ms), or none.
    auto messages = socket.during(std::chrono::milliseconds(1200));
    std::size_t keepAlives = 0;
    std::chrono::milliseconds longestGap(0);
    std::optional<Clock::time_point> last;
    for (const auto& [when, text] : messages) {
        EXPECT_EQ(text, "WATCHDOG=1");
        ++keepAlives;
        if (last) {
            longestGap = std::max(longestGap, std::chrono::duration_cast<std::chrono::milliseconds>(when - *last));
        }
        last = when;
    }
    if (GetParam().keepsAlive) {
        EXPECT_GE(keepAlives, 4u);
        EXPECT_LT(longestGap, std::chrono::milliseconds(400));
    } else {
        EXPECT_EQ(keepAlives, 0u);
    }

    ASSERT_EQ(::kill(agent.pid(), SIGTERM), 0);
    std::optional<std::string> stopping;
    while ((stopping = socket.receive(std::chrono::seconds(1))) && *stopping == "WATCHDOG=1") {
    }
    EXPECT_EQ(stopping, "STOPPING=1");
    EXPECT_EQ(agent.signalAndWait(0, std::chrono::seconds(1)), 0);
}

INSTANTIATE_TEST_SUITE_P(Watchdogs, AgentServiceManager,
                         ::testing::Values(WatchdogCase{"ForThisProcess", "WATCHDOG_USEC=400000 WATCHDOG_PID=$$", true},
                                           WatchdogCase{"WithoutPid", "WATCHDOG_USEC=400000", true},
                                           WatchdogCase{"ForAnotherProcess", "WATCHDOG_USEC=400000 WATCHDOG_PID=1",
                                                        false},
                                           WatchdogCase{"None", "", false}),
                         [](const auto& testCase) { return testCase.param.name; });

}  // namespace
