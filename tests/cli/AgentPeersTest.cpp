// tvpolicy agent with the real peers around it: DNS discovery from dnsmasq, Wi-Fi through
// NetworkManager and sleep through systemd-logind (python3-dbusmock on a private bus), address
// and hardware address changes in a network namespace, and the address renewal a policy asks for.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/ChildProcess.h"
#include "support/NetNamespace.h"
#include "support/NetworkManagerMock.h"
#include "support/PrivateBus.h"
#include "support/ProcessWatch.h"
#include "support/ReferenceServer.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing_support::ChildProcess;
using testing_support::loggingTo;
using testing_support::NetNamespace;
using testing_support::ReferenceServer;
using testing_support::runCli;
using testing_support::runProgram;
using testing_support::TempDir;
using Json = nlohmann::json;

namespace {

const std::string examples = std::string(TVPOLICY_SOURCE_DIR) + "/examples/";

// A policy that passes anywhere and, unlike the examples, leaves the address renewal on.
const std::string renewingPolicy =
    "<policy name='renewing'><section name='Accounts' primary='true'>"
    "<File fileName='passwd' startPath='/etc'/></section></policy>";

std::vector<std::string> inNamespace(const NetNamespace& ns, std::vector<std::string> argv)
{
    argv.insert(argv.begin(), {"ip", "netns", "exec", ns.name()});
    return argv;
}

// Why each cycle of a running agent's JSON lines started, oldest first.
std::vector<std::string> cycleReasons(const std::filesystem::path& log)
{
    std::vector<std::string> reasons;
    std::ifstream in(log);
    for (std::string line; std::getline(in, line);) {
        Json entry = Json::parse(line, nullptr, false);
        if (entry.is_object() && entry.contains("reason")) {
            reasons.push_back(entry["reason"]);
        }
    }
    return reasons;
}

bool waitForCycles(const std::filesystem::path& log, std::size_t count, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (cycleReasons(log).size() < count) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    return true;
}

// DNS names two servers for the search domain: the first refuses connections, the second is the
// reference server behind a path. Only the namespace's own dnsmasq is ever asked.
TEST(AgentDiscovery, TakesTheFirstServerThatAcceptsAndCompletesItFromTxt)
{
    NetNamespace ns;
    if (!ns.valid()) {
        GTEST_SKIP() << ns.skipReason();
    }
    ASSERT_TRUE(ns.exec("ip link set lo up"));
    ns.setResolvConf("nameserver 127.0.0.1\nsearch corp.test\n");
    ReferenceServer server({"--policy", examples + "compliant.xml", "--prefix", "/tvp"},
                           {"ip", "netns", "exec", ns.name()});
    ASSERT_TRUE(server.started());
    const std::string port = std::to_string(server.port());
    ChildProcess dns(
        inNamespace(ns, {"dnsmasq", "--keep-in-foreground", "--no-resolv", "--no-hosts", "--bind-interfaces",
                         "--listen-address=127.0.0.1", "--port=53", "--pid-file=", "--user=root",
                         "--srv-host=_tvpolicy._tcp.corp.test,refusing.corp.test,9,5,0",
                         "--srv-host=_tvpolicy._tcp.corp.test,taking.corp.test," + port + ",10,0",
                         "--host-record=refusing.corp.test,127.0.0.1", "--host-record=taking.corp.test,127.0.0.1",
                         "--txt-record=_tvpolicy._tcp.corp.test,scheme=http,path=/tvp"}));
    ASSERT_TRUE(ns.waitFor("getent hosts taking.corp.test")) << "dnsmasq did not answer";

    TempDir state;
    auto result = runProgram(inNamespace(ns, {TVPOLICY_CLI, "agent", "--once", "--allow-http", "--state-dir",
                                              (state.path() / "state").string(), "--config", "/dev/null"}));
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_THAT(result.err, HasSubstr("server http://taking.corp.test:" + port + "/tvp/ scan default: passed"));
    std::vector<std::string> lines = server.requestLines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "GET /tvp/agent/config");
    EXPECT_EQ(lines.back(), "GET /tvp/agent/report/success");

    // Without allow_http the TXT record's plain http is refused, naming the service.
    auto refused = runProgram(inNamespace(ns, {TVPOLICY_CLI, "agent", "--once", "--state-dir",
                                               (state.path() / "state").string(), "--config", "/dev/null"}));
    EXPECT_EQ(refused.exitCode, 3);
    EXPECT_THAT(refused.err, HasSubstr("_tvpolicy._tcp.corp.test is offered over http"));
}

struct JoinCase {
    std::string name;
    std::vector<std::string> statusFiles;  // status-N.xml (or status.xml) asking to join
    int exitCode;
    std::size_t statusRequests;
};

class AgentWifiJoin : public testing_support::PrivateBusTest, public ::testing::WithParamInterface<JoinCase> {};

// NEEDS_SWIFTJOIN: the profile is stored and joined through NetworkManager, then the status is
// asked again, at most twice.
TEST_P(AgentWifiJoin, JoinsTheNetworkAndAsksAgain)
{
    testing_support::NetworkManagerMock nm(bus);
    ASSERT_TRUE(nm.start());
    const std::string device = "/org/freedesktop/NetworkManager/Devices/wifi0";
    nm.control(nm.path, "AddWiFiDevice", "ssi", {"wifi0", "wlan0", "100"});
    nm.control(nm.path, "AddAccessPoint", "ssssuuuyu",
               {device, "campus", "campus-secure", "0A:1B:2C:3D:4E:60", "2", "2437", "54000", "80", "512"});
    TempDir dir;
    const std::string joinReply = testing_support::readFile(examples + "status-wpa2-enterprise.xml");
    for (const std::string& file : GetParam().statusFiles) {
        dir.write("root/" + file, joinReply);
    }
    ReferenceServer server({"--root", (dir.path() / "root").string(), "--policy", examples + "compliant.xml"});
    ASSERT_TRUE(server.started());

    auto result = runCli({"agent", "--once", "--allow-http", "--server", server.url(), "--state-dir",
                          (dir.path() / "state").string(), "--config", "/dev/null"});
    EXPECT_EQ(result.exitCode, GetParam().exitCode) << result.err;
    std::vector<std::string> lines = server.requestLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "GET /agent/status"), GetParam().statusRequests);
    Json stored = bus.call({nm.service, "/org/freedesktop/NetworkManager/Settings",
                            "org.freedesktop.NetworkManager.Settings", "ListConnections"});
    EXPECT_EQ(stored["data"][0].size(), 1u) << "the profile is stored once, however often it is asked for";
}

INSTANTIATE_TEST_SUITE_P(Replies, AgentWifiJoin,
                         ::testing::Values(JoinCase{"ThenScans", {"status-1.xml"}, 0, 2},
                                           JoinCase{"TwiceThenScans", {"status-1.xml", "status-2.xml"}, 0, 3},
                                           JoinCase{"AlwaysIsAFailedCycle", {"status.xml"}, 3, 3}),
                         [](const auto& testCase) { return testCase.param.name; });

// A running agent in a namespace of its own, with logind on a private bus, telling each cycle
// as a JSON line.
class AgentEvents : public testing_support::PrivateBusTest {
protected:
    void SetUp() override
    {
        PrivateBusTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        if (!ns.valid()) {
            GTEST_SKIP() << ns.skipReason();
        }
        ASSERT_TRUE(bus.startMock("logind", {"org.freedesktop.login1", "/org/freedesktop/login1",
                                             "org.freedesktop.login1.Manager", "ListInhibitors"}));
        ASSERT_TRUE(ns.exec("ip link set lo up && ip link add va type veth peer name vb && ip link set va up"));
        server = std::make_unique<ReferenceServer>(std::vector<std::string>{"--policy", examples + "compliant.xml"},
                                                   std::vector<std::string>{"ip", "netns", "exec", ns.name()});
        ASSERT_TRUE(server->started());
        agent = std::make_unique<ChildProcess>(
            loggingTo(log, inNamespace(ns, {TVPOLICY_CLI, "agent", "--json", "--allow-http", "--server", server->url(),
                                            "--state-dir", (dir.path() / "state").string(), "--config", "/dev/null"})));
        ASSERT_TRUE(waitForCycles(log, 1, std::chrono::seconds(20)));
        // Past the first cycle's burst window, with the notifiers watching.
        std::this_thread::sleep_for(std::chrono::milliseconds(2500));
    }

    void TearDown() override
    {
        if (agent) {
            EXPECT_EQ(agent->signalAndWait(SIGTERM, std::chrono::seconds(1)), 0);
        }
    }

    void prepareForSleep(bool sleeping)
    {
        bus.call({"org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.DBus.Mock", "EmitSignal",
                  "sssav", "org.freedesktop.login1.Manager", "PrepareForSleep", "b", "1", "b",
                  sleeping ? "true" : "false"});
    }

    NetNamespace ns;
    TempDir dir;
    const std::filesystem::path log = dir.path() / "agent.log";
    std::unique_ptr<ReferenceServer> server;
    std::unique_ptr<ChildProcess> agent;
};

TEST_F(AgentEvents, AWakeUpStartsACycleAndGoingToSleepDoesNot)
{
    prepareForSleep(true);
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    EXPECT_EQ(cycleReasons(log).size(), 1u);
    prepareForSleep(false);
    ASSERT_TRUE(waitForCycles(log, 2, std::chrono::seconds(3)));
    EXPECT_THAT(cycleReasons(log), ElementsAre("start", "wake-up"));
}

TEST_F(AgentEvents, AHardwareAddressChangeStartsACycle)
{
    // On an interface that is down no address comes or goes with it: only the hardware address changes.
    ASSERT_TRUE(ns.exec("ip link set vb address 02:00:00:00:00:42"));
    ASSERT_TRUE(waitForCycles(log, 2, std::chrono::seconds(13)));
    EXPECT_THAT(cycleReasons(log), ElementsAre("start", "hardware address change"));
}

TEST_F(AgentEvents, ABurstOfAddressChangesIsOneCycle)
{
    ASSERT_TRUE(
        ns.exec("for i in 1 2 3 4 5 6; do ip addr add 10.77.0.$i/32 dev va; sleep 0.1; done; "
                "ip addr del 10.77.0.1/32 dev va"));
    ASSERT_TRUE(waitForCycles(log, 2, std::chrono::seconds(3)));
    std::this_thread::sleep_for(std::chrono::milliseconds(3000));
    EXPECT_THAT(cycleReasons(log), ElementsAre("start", "address change"));
}

struct RenewalCase {
    std::string name;
    std::string policy;
    std::string networkctlCalls;
};

class AgentRenewal : public ::testing::TestWithParam<RenewalCase> {};

// NetworkManager is not on the bus here, so the renewal goes to networkctl: a stand-in that
// records its arguments and gives the interface a new address, as a DHCP server would.
TEST_P(AgentRenewal, RenewsAfterAPassAndRecordsTheNewAddresses)
{
    NetNamespace ns;
    if (!ns.valid()) {
        GTEST_SKIP() << ns.skipReason();
    }
    ASSERT_TRUE(
        ns.exec("ip link set lo up && ip link add va type veth peer name vb && "
                "ip addr add 10.9.0.1/24 dev va && ip link set va up && ip link set vb up"));
    TempDir dir;
    auto stub = dir.write("bin/networkctl", "#!/bin/sh\nprintf '%s\\n' \"$@\" >> '" + (dir.path() / "calls").string() +
                                                "'\nip addr add 10.9.0.2/24 dev \"$2\"\n");
    std::filesystem::permissions(stub, std::filesystem::perms::owner_all);
    ReferenceServer server({"--policy", dir.write("policy.xml", GetParam().policy).string()},
                           {"ip", "netns", "exec", ns.name()});
    ASSERT_TRUE(server.started());

    const std::string stateDir = (dir.path() / "state").string();
    auto result = runProgram(inNamespace(
        ns, {"env", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus",
             "PATH=" + (dir.path() / "bin").string() + ":/usr/sbin:/usr/bin:/sbin:/bin", TVPOLICY_CLI, "agent",
             "--once", "--allow-http", "--server", server.url(), "--state-dir", stateDir, "--config", "/dev/null"}));
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::filesystem::path calls = dir.path() / "calls";
    EXPECT_EQ(std::filesystem::exists(calls) ? testing_support::readFile(calls) : "", GetParam().networkctlCalls);

    auto status = runCli({"agent", "--status", "--json", "--state-dir", stateDir, "--config", "/dev/null"});
    ASSERT_EQ(status.exitCode, 0) << status.err;
    Json verdict = Json::parse(status.out);
    if (GetParam().networkctlCalls.empty()) {
        EXPECT_FALSE(verdict.contains("addresses"));
    } else {
        EXPECT_THAT(verdict["addresses"]["va"].get<std::vector<std::string>>(),
                    ::testing::IsSupersetOf({"10.9.0.1", "10.9.0.2"}));
        EXPECT_THAT(result.err, HasSubstr("renewed the address of va"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Policies, AgentRenewal,
    ::testing::Values(RenewalCase{"AskedFor", renewingPolicy, "renew\nva\n"},
                      RenewalCase{"TurnedOff",
                                  "<policy name='kept'><renewip>false</renewip><section name='Accounts' "
                                  "primary='true'><File fileName='passwd' startPath='/etc'/></section></policy>",
                                  ""}),
    [](const auto& testCase) { return testCase.param.name; });

// Stops a running agent as a service manager does, and checks that it went within a second,
// exiting 0, with a last line telling what the stop cut short.
void expectQuickStop(ChildProcess& agent, const std::filesystem::path& log, const std::string& cutShort)
{
    auto sent = std::chrono::steady_clock::now();
    std::optional<int> status = agent.signalAndWait(SIGTERM, std::chrono::seconds(3));
    ASSERT_TRUE(status.has_value()) << "still running 3 s after SIGTERM";
    EXPECT_EQ(*status, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - sent, std::chrono::milliseconds(1000));
    std::ifstream in(log);
    Json last;
    for (std::string line; std::getline(in, line);) {
        last = Json::parse(line, nullptr, false);
    }
    EXPECT_EQ(last.value("verdict", ""), "stopped") << last.dump();
    EXPECT_EQ(last.value("message", ""), "stopped during " + cutShort) << last.dump();
}

// The search domain's name server takes every query and answers none: the agent is stopped
// while it waits for the answer to its SRV query.
TEST(AgentStopPeers, DuringADnsLookupThatGetsNoAnswer)
{
    NetNamespace ns;
    if (!ns.valid()) {
        GTEST_SKIP() << ns.skipReason();
    }
    ASSERT_TRUE(ns.exec("ip link set lo up"));
    ns.setResolvConf("nameserver 127.0.0.1\nsearch corp.test\n");
    ChildProcess silent(inNamespace(ns, {"/usr/bin/python3", "-u", "-c",
                                         "import socket\n"
                                         "s = socket.socket(socket.AF_INET, socket.SOCK_DGRAM)\n"
                                         "s.bind(('127.0.0.1', 53))\n"
                                         "print('ready')\n"
                                         "while True:\n"
                                         "    s.recvfrom(4096)\n"
                                         "    print('query')\n"}),
                        true);
    ASSERT_EQ(silent.readLine(std::chrono::seconds(10)), "ready");
    TempDir dir;
    const auto log = dir.path() / "agent.log";
    ChildProcess agent(loggingTo(log, inNamespace(ns, {TVPOLICY_CLI, "agent", "--json", "--state-dir",
                                                       (dir.path() / "state").string(), "--config", "/dev/null"})));
    ASSERT_EQ(silent.readLine(std::chrono::seconds(20)), "query");
    expectQuickStop(agent, log, "the DNS discovery");
}

// networkctl (NetworkManager is not on the bus) does not come back: the agent is stopped during
// the renewal, which ends the stand-in with what it started; the passed verdict was kept before.
TEST(AgentStopPeers, DuringAnAddressRenewal)
{
    NetNamespace ns;
    if (!ns.valid()) {
        GTEST_SKIP() << ns.skipReason();
    }
    ASSERT_TRUE(
        ns.exec("ip link set lo up && ip link add va type veth peer name vb && "
                "ip addr add 10.9.0.1/24 dev va && ip link set va up && ip link set vb up"));
    TempDir dir;
    const auto pids = dir.path() / "pids";
    auto stub = dir.write("bin/networkctl", "#!/bin/sh\nsleep 30 & echo $$ $! > '" + pids.string() + "'; wait\n");
    std::filesystem::permissions(stub, std::filesystem::perms::owner_all);
    ReferenceServer server({"--policy", dir.write("policy.xml", renewingPolicy).string()},
                           {"ip", "netns", "exec", ns.name()});
    ASSERT_TRUE(server.started());
    const std::string stateDir = (dir.path() / "state").string();
    const auto log = dir.path() / "agent.log";
    ChildProcess agent(
        loggingTo(log, inNamespace(ns, {"env", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus",
                                        "PATH=" + (dir.path() / "bin").string() + ":/usr/sbin:/usr/bin:/sbin:/bin",
                                        TVPOLICY_CLI, "agent", "--json", "--allow-http", "--server", server.url(),
                                        "--state-dir", stateDir, "--config", "/dev/null"})));
    std::vector<pid_t> started = testing_support::waitForPidLine(pids, std::chrono::seconds(20));
    ASSERT_EQ(started.size(), 2u) << "networkctl was not called";
    expectQuickStop(agent, log, "the address renewal");
    for (pid_t pid : started) {
        EXPECT_FALSE(testing_support::processRunning(pid)) << "process " << pid << " of networkctl was left running";
    }
    auto status = runCli({"agent", "--status", "--json", "--state-dir", stateDir, "--config", "/dev/null"});
    ASSERT_EQ(status.exitCode, 0) << status.err;
    Json verdict = Json::parse(status.out);
    EXPECT_EQ(verdict["verdict"], "passed");
    EXPECT_FALSE(verdict.contains("addresses"));
}

}  // namespace
