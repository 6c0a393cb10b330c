// The posture checks against this machine: dpkg's own version order and package database,
// and listening sockets, the packet filter and kernel parameters in network namespaces that
// the tests make and load with real nftables rulesets.
#include <tvpolicy/host/DescribedHostProbe.h>

#include <gtest/gtest.h>

#include <memory>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <tvpolicy/base/OwnedFd.h>
#include "checks/PostureTask.h"
#include "support/DpkgQuery.h"
#include "support/NetNamespace.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::NetNamespace;
using testing_support::runProgram;
using namespace tvpolicy::checks;

struct Outcome {
    bool passed = false;
    std::string message;
};

Outcome perform(Task* (*create)(), std::vector<Task::Attribute> attributes)
{
    std::unique_ptr<Task> task(create());
    for (auto& attribute : attributes) {
        task->setAttribute(&attribute);
    }
    std::unique_ptr<TaskResponse> response(task->perform());
    return {response->passed, response->message};
}

// "P" or "F" and the message, as a forked child hands it back.
std::string verdict(const Outcome& outcome) { return (outcome.passed ? "P " : "F ") + outcome.message; }

bool dpkgSays(const std::string& a, const char* relation, const std::string& b)
{
    return runProgram({"dpkg", "--compare-versions", a, relation, b}).exitCode == 0;
}

// Pairs whose order dpkg decides: epochs, tildes, revisions, letters and odd signs.
const std::pair<const char*, const char*> versionPairs[] = {
    {"1.0", "1.0"},
    {"1.0", "1.1"},
    {"1.10", "1.9"},
    {"1.0", "1.0.0"},
    {"1:1.0", "2.0"},
    {"1:1.0", "1:1.0"},
    {"0:1.0", "1.0"},
    {"2:0.1", "1:9.9"},
    {"1.0~rc1", "1.0"},
    {"1.0~rc1", "1.0~rc2"},
    {"1.0~~", "1.0~"},
    {"1.0~", "1.0"},
    {"1.0~rc1-1", "1.0-1"},
    {"1.0-1", "1.0-2"},
    {"1.0-10", "1.0-9"},
    {"1.0-1", "1.0"},
    {"1.0-0", "1.0"},
    {"1.0-1.1", "1.0-1"},
    {"1.0-1~bpo1", "1.0-1"},
    {"1.0-1+deb12u1", "1.0-1"},
    {"1.0a", "1.0"},
    {"1.0a", "1.0b"},
    {"1.0a", "1.0.1"},
    {"1.0+dfsg", "1.0"},
    {"1.0+dfsg", "1.0.1"},
    {"1.0.", "1.0"},
    {"1.0-a", "1.0-1"},
    {"9.2p1", "9.2"},
    {"9.2p1-2", "9.2p1-2+deb12u3"},
    {"1:9.2p1-2", "1:9.3"},
    {"2.36-9+deb12u4", "2.36-9"},
    {"007", "7"},
    {"1.001", "1.1"},
    {"1.2-3-4", "1.2-3"},
    {"1:2:3", "1:2"},
    {"1.0+b1", "1.0"},
    {"1.0.0+git20230101", "1.0.0"},
    {"3.0~a1", "3.0~b1"},
    {"1.0-1ubuntu1", "1.0-1"},
    {"10:1", "9:2"},
    {"1.0Z", "1.0a"},
    {"1.0.a", "1.0.A"},
    {"0.17+2.4-2", "0.17-2"},
    {"1.2.3", "1.2.3~"},
};

TEST(DpkgVersionOrder, EveryPairAgreesWithDpkgThroughPackageInstalled)
{
    if (runProgram({"dpkg", "--version"}).exitCode != 0) {
        GTEST_SKIP() << "dpkg is not installed";
    }
    ASSERT_GE(std::size(versionPairs), 40u);
    tvpolicy::DescribedHostProbe host;
    tvpolicy::ScopedHost scoped(host);
    host.applications.format = tvpolicy::HostProbe::ApplicationListing::Format::DpkgStatus;
    for (const auto& [installed, required] : versionPairs) {
        host.applications.text =
            std::string("Package: pkg\nStatus: install ok installed\nArchitecture: all\nVersion: ") + installed + "\n";
        for (const char* operation : {"lt", "lte", "eq", "gte", "gt"}) {
            std::string relation = std::string(operation) == "lte"   ? "le"
                                   : std::string(operation) == "gte" ? "ge"
                                                                     : operation;
            bool dpkg = dpkgSays(installed, relation.c_str(), required);
            Outcome outcome =
                perform(createPackageInstalled, {{"name", "pkg"}, {"required", required}, {"operation", operation}});
            EXPECT_EQ(outcome.passed, dpkg)
                << installed << " " << operation << " " << required << ": " << outcome.message;
        }
    }
}

TEST(DpkgDatabase, AgreesWithDpkgQuery)
{
    auto packages = testing_support::installedByDpkgQuery();
    if (packages.empty()) {
        GTEST_SKIP() << "dpkg-query lists nothing here";
    }
    // Every seventh package, and dpkg itself, keep the run short on a large system.
    std::size_t index = 0;
    for (const auto& [name, version] : packages) {
        if (index++ % 7 != 0 && name != "dpkg") {
            continue;
        }
        Outcome same = perform(createPackageInstalled, {{"name", name}, {"required", version}, {"operation", "eq"}});
        EXPECT_TRUE(same.passed) << name << " " << version << ": " << same.message;
        EXPECT_NE(same.message.find(version), std::string::npos) << same.message;
        Outcome newer =
            perform(createPackageInstalled, {{"name", name}, {"required", version + "+1"}, {"operation", "gte"}});
        EXPECT_FALSE(newer.passed) << name << ": " << newer.message;
    }
    std::string absent = "tvpolicy-no-such-package";
    ASSERT_EQ(packages.count(absent), 0u);
    EXPECT_FALSE(perform(createPackageInstalled, {{"name", absent}}).passed);
}

class PostureNamespace : public testing::Test {
protected:
    void SetUp() override
    {
        if (!ns.valid()) {
            GTEST_SKIP() << ns.skipReason();
        }
        ASSERT_TRUE(ns.exec("ip link set lo up"));
    }

    // Loads `ruleset` (nft syntax) after flushing what was there.
    void loadRuleset(const std::string& ruleset)
    {
        testing_support::TempDir tmp;
        auto file = tmp.write("rules.nft", "flush ruleset\n" + ruleset);
        ASSERT_TRUE(ns.exec("nft -f " + file.string())) << ruleset;
    }

    NetNamespace ns;
};

// A socket bound to the loopback of `family` on `port`; listening when it is a stream.
int openSocket(int family, int type, unsigned port, bool connectIt = false)
{
    int fd = ::socket(family, type | SOCK_CLOEXEC, 0);
    int on = 1;
    ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_storage address{};
    socklen_t length = 0;
    if (family == AF_INET) {
        auto* v4 = reinterpret_cast<sockaddr_in*>(&address);
        v4->sin_family = AF_INET;
        v4->sin_port = htons(static_cast<std::uint16_t>(port));
        v4->sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        length = sizeof *v4;
    } else {
        auto* v6 = reinterpret_cast<sockaddr_in6*>(&address);
        v6->sin6_family = AF_INET6;
        v6->sin6_port = htons(static_cast<std::uint16_t>(port));
        v6->sin6_addr = in6addr_loopback;
        length = sizeof *v6;
    }
    if (::bind(fd, reinterpret_cast<sockaddr*>(&address), length) != 0) {
        return -1;
    }
    if (type == SOCK_STREAM) {
        ::listen(fd, 4);
    }
    if (connectIt && ::connect(fd, reinterpret_cast<sockaddr*>(&address), length) != 0) {
        ::close(fd);
        return -1;
    }
    return fd;
}

TEST_F(PostureNamespace, ListeningSocketsOfBothFamiliesAndProtocols)
{
    std::string result = ns.inChild([] {
        tvpolicy::OwnedFd tcp4(openSocket(AF_INET, SOCK_STREAM, 8022));
        tvpolicy::OwnedFd tcp6(openSocket(AF_INET6, SOCK_STREAM, 8023));
        tvpolicy::OwnedFd udp6(openSocket(AF_INET6, SOCK_DGRAM, 5353));
        tvpolicy::OwnedFd connectedUdp(openSocket(AF_INET, SOCK_DGRAM, 5454, true));
        tvpolicy::OwnedFd boundTcp(::socket(AF_INET, SOCK_STREAM, 0));
        std::string lines;
        for (auto [port, protocol] : std::vector<std::pair<const char*, const char*>>{
                 {"8022", "tcp"}, {"8023", "tcp"}, {"5353", "udp"}, {"5454", "udp"}, {"5353", "tcp"}, {"23", "tcp"}}) {
            lines += verdict(perform(createPortListening, {{"port", port}, {"protocol", protocol}})) + "\n";
        }
        return lines;
    });
    EXPECT_EQ(result,
              "P tcp port 8022 is listening (IPv4)\n"
              "P tcp port 8023 is listening (IPv6)\n"
              "P udp port 5353 is listening (IPv6)\n"
              "F nothing listens on udp port 5454\n"
              "F nothing listens on tcp port 5353\n"
              "F nothing listens on tcp port 23\n");
}

TEST_F(PostureNamespace, FirewallFromRealRulesets)
{
    struct Ruleset {
        const char* what;
        const char* rules;
        const char* verdict;
    } rulesets[] = {
        {"drop policy", "table inet filter {\n chain input { type filter hook input priority 0; policy drop; }\n}\n",
         "P input chain inet filter input drops (policy drop)"},
        {"reject rule",
         "table ip filter {\n chain INPUT { type filter hook input priority 0; tcp dport 23 reject; }\n}\n",
         "P input chain ip filter INPUT drops or rejects (a rule)"},
        {"accept only",
         "table ip6 filter {\n chain input { type filter hook input priority 0; policy accept; ct state established accept; }\n}\n",
         "F 1 input chain(s), none drops or rejects"},
        {"no table", "", "F no packet filter chain on the input hook"},
        {"output only", "table inet filter {\n chain output { type filter hook output priority 0; policy drop; }\n}\n",
         "F no packet filter chain on the input hook"},
        {"drop in a jumped-to chain only",
         "table inet filter {\n chain deny { drop; }\n chain input { type filter hook input priority 0; jump deny; }\n}\n",
         "F 1 input chain(s), none drops or rejects"},
    };
    for (const auto& ruleset : rulesets) {
        loadRuleset(ruleset.rules);
        std::string result = ns.inChild([] { return verdict(perform(createFirewallActive, {})); });
        EXPECT_EQ(result, ruleset.verdict) << ruleset.what;
    }
}

TEST_F(PostureNamespace, KernelParameterOfTheNamespace)
{
    ASSERT_TRUE(ns.exec("sysctl -qw net.ipv4.ip_forward=1"));
    std::string result = ns.inChild([] {
        return verdict(perform(createKernelParameter, {{"name", "net.ipv4.ip_forward"}, {"value", "1"}})) + "\n" +
               verdict(perform(createKernelParameter, {{"name", "net.ipv4.no_such"}, {"value", "1"}})) + "\n" +
               verdict(perform(createKernelParameter,
                               {{"name", "net.ipv4.ip_local_port_range"}, {"value", "32768 60999"}}));
    });
    EXPECT_EQ(result,
              "P net.ipv4.ip_forward = 1\n"
              "F net.ipv4.no_such: no such parameter\n"
              "P net.ipv4.ip_local_port_range = 32768 60999");
}

TEST_F(PostureNamespace, HardenedPolicyPassesUntilTheFirewallTableGoes)
{
    testing_support::TempDir tmp;
    std::string policy = tmp.write("hardened.xml",
                                   "<policy name=\"Hardened\">\n"
                                   "  <section name=\"Exposure\" primary=\"true\">\n"
                                   "    <FirewallActive/>\n"
                                   "    <PortListening port=\"8022\"/>\n"
                                   "    <not><PortListening port=\"23\"/></not>\n"
                                   "  </section>\n"
                                   "</policy>\n")
                             .string();
    loadRuleset(
        "table inet filter {\n chain input { type filter hook input priority 0; policy drop; iif lo accept; }\n}\n");
    auto run = [&] {
        return ns.inChild([&] {
            tvpolicy::OwnedFd listener(openSocket(AF_INET, SOCK_STREAM, 8022));
            auto result = testing_support::runCli({"run", policy});
            return std::to_string(result.exitCode) + "\n" + result.out;
        });
    };
    std::string passing = run();
    EXPECT_EQ(passing.substr(0, 2), "0\n") << passing;
    ASSERT_TRUE(ns.exec("nft delete table inet filter"));
    std::string failing = run();
    EXPECT_EQ(failing.substr(0, 2), "1\n") << failing;
    EXPECT_NE(failing.find("no packet filter chain on the input hook"), std::string::npos) << failing;
}

}  // namespace
