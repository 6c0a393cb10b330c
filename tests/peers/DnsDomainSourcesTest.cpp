// The host's DNS suffix and search domains, read from the sources a Linux host has, in their
// order: systemd-resolved (a dbusmock object of this test's own), the DHCP lease that
// NetworkManager holds for its primary connection (dbusmock's template), and resolv.conf (a
// file this test writes, reached through the host's system paths). All on a private bus.
#include <tvpolicy/host/NetworkInterface.h>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "support/MappedHost.h"
#include "support/NetworkManagerMock.h"
#include "support/PrivateBus.h"

namespace {

using com::torvane::api::NetworkInterface;
using Strings = std::vector<std::string>;

const char* const resolve1 = "org.freedesktop.resolve1";
const char* const resolve1Path = "/org/freedesktop/resolve1";
const char* const resolve1Manager = "org.freedesktop.resolve1.Manager";
const char* const nmService = testing_support::NetworkManagerMock::service;
const char* const nmPath = testing_support::NetworkManagerMock::path;

// systemd-resolved's manager as far as the library reads it: the search domains with the
// interface each belongs to (0 for global ones) and whether it only routes queries.
const char* const resolvedTemplate =
    "import dbus\n"
    "BUS_NAME = 'org.freedesktop.resolve1'\n"
    "MAIN_OBJ = '/org/freedesktop/resolve1'\n"
    "MAIN_IFACE = 'org.freedesktop.resolve1.Manager'\n"
    "SYSTEM_BUS = True\n"
    "def load(mock, parameters):\n"
    "    mock.AddProperties(MAIN_IFACE, {'Domains': dbus.Array([], signature='(isb)')})\n";

// A peer that takes resolved's name and then never answers anything.
const char* const silentResolved =
    "import dbus, time\n"
    "dbus.SystemBus().request_name('org.freedesktop.resolve1')\n"
    "time.sleep(600)\n";

const char* const fileText = "nameserver 127.0.0.1\nsearch file.example second.example file.example\n";

class DomainSources : public testing_support::PrivateBusTest {
public:
    void SetUp() override
    {
        PrivateBusTest::SetUp();
        host.tmp.write("resolv.conf", fileText);
    }

    // resolved on the bus with Domains set to `domains` (busctl arguments of `signature`).
    void startResolved(const std::string& signature, const Strings& domains)
    {
        std::string path = host.tmp.write("resolved.py", resolvedTemplate).string();
        ASSERT_TRUE(bus.startMock(
            path, {resolve1, resolve1Path, "org.freedesktop.DBus.Properties", "Get", "ss", resolve1Manager, "Domains"}))
            << "the resolved mock did not come up";
        Strings args = {"set-property", resolve1, resolve1Path, resolve1Manager, "Domains", signature};
        args.insert(args.end(), domains.begin(), domains.end());
        testing_support::CliResult set = bus.busctl(args);
        ASSERT_EQ(set.exitCode, 0) << set.err;
    }

    void startNetworkManager() { ASSERT_TRUE(nm.start()) << "the NetworkManager mock did not come up"; }

    // NetworkManager with eth0's connection as the primary one, whose DHCPv4 lease (path
    // `lease`, "/" for none) has `options` (busctl a{sv} arguments).
    void primaryConnectionWithLease(const std::string& lease, const Strings& options)
    {
        startNetworkManager();
        if (HasFatalFailure()) {
            return;
        }
        std::string active = nm.addActiveWired("eth0").active;
        nm.control(nmPath, "AddProperty", "ssv", {nmService, "PrimaryConnection", "o", active});
        if (lease != "/") {
            Strings object = {lease, "org.freedesktop.NetworkManager.DHCP4Config", "1", "Options", "a{sv}"};
            object.insert(object.end(), options.begin(), options.end());
            object.push_back("0");
            nm.control(nmPath, "AddObject", "ssa{sv}a(ssss)", object);
        }
        nm.control(active, "AddProperty", "ssv",
                   {"org.freedesktop.NetworkManager.Connection.Active", "Dhcp4Config", "o", lease});
    }

    void leaseDomain(const std::string& domain)
    {
        primaryConnectionWithLease("/org/freedesktop/NetworkManager/DHCP4Config/1",
                                   {"2", "ip_address", "s", "10.0.0.5", "domain_name", "s", domain});
    }

    Strings searchDomains() const
    {
        Strings found;
        NetworkInterface::getGlobalDNSSuffixes(found);
        return found;
    }

    testing_support::NetworkManagerMock nm{bus};
    testing_support::MappedHost host{{{"/etc/resolv.conf", "resolv.conf"}}};
};

struct Scenario {
    const char* name;
    std::function<void(DomainSources&)> arrange;
    std::string suffix;
    Strings search;
};

void PrintTo(const Scenario& scenario, std::ostream* out) { *out << scenario.name; }

const Strings fromFile = {"file.example", "second.example"};

const Scenario scenarios[] = {
    {"ResolvedWinsOverTheLeaseAndTheFile",
     [](DomainSources& t) {
         t.startResolved("a(isb)", {"4", "0", "corp.example", "false", "2", "lab.example", "false", "3",
                                    "route.example", "true", "2", "corp.example", "false"});
         t.leaseDomain("dhcp.example");
     },
     "corp.example",
     {"corp.example", "lab.example"}},
    {"ResolvedWithOnlyRouteOrEmptyDomainsPassesToTheLease",
     [](DomainSources& t) {
         t.startResolved("a(isb)", {"2", "3", "route.example", "true", "2", "", "false"});
         t.leaseDomain("dhcp.example  other.example");
     },
     "dhcp.example",
     {"dhcp.example", "other.example"}},
    {"ResolvedInAnotherShapePassesToTheLease",
     [](DomainSources& t) {
         t.startResolved("as", {"1", "corp.example"});
         t.leaseDomain("dhcp.example");
     },
     "dhcp.example",
     {"dhcp.example"}},
    {"LeaseWhenResolvedIsAbsent",
     [](DomainSources& t) { t.leaseDomain("dhcp.example"); },
     "dhcp.example",
     {"dhcp.example"}},
    {"LeaseWithoutDomainFallsToTheFile",
     [](DomainSources& t) {
         t.primaryConnectionWithLease("/org/freedesktop/NetworkManager/DHCP4Config/1",
                                      {"1", "ip_address", "s", "10.0.0.5"});
     },
     "file.example", fromFile},
    {"LeaseDomainOfAnotherTypeFallsToTheFile",
     [](DomainSources& t) {
         t.primaryConnectionWithLease("/org/freedesktop/NetworkManager/DHCP4Config/1",
                                      {"1", "domain_name", "ay", "3", "97", "98", "99"});
     },
     "file.example", fromFile},
    {"PrimaryConnectionWithoutLeaseFallsToTheFile", [](DomainSources& t) { t.primaryConnectionWithLease("/", {}); },
     "file.example", fromFile},
    {"NetworkManagerWithoutPrimaryConnectionFallsToTheFile",
     [](DomainSources& t) {
         t.startNetworkManager();
         t.nm.addActiveWired("eth0");
     },
     "file.example", fromFile},
    {"ResolvedWithoutDomainsAndNoNetworkManagerFallsToTheFile",
     [](DomainSources& t) { t.startResolved("a(isb)", {"0"}); }, "file.example", fromFile},
    {"NothingOnTheBus", [](DomainSources&) {}, "file.example", fromFile},
};

class DomainScenario : public DomainSources, public testing::WithParamInterface<Scenario> {};

TEST_P(DomainScenario, SuffixAndSearchDomainsComeFromTheFirstSourceThatNamesAny)
{
    GetParam().arrange(*this);
    ASSERT_FALSE(HasFatalFailure());
    EXPECT_EQ(com::torvane::api::getSearchDomain(), GetParam().suffix);
    EXPECT_EQ(searchDomains(), GetParam().search);
}

INSTANTIATE_TEST_SUITE_P(Sources, DomainScenario, testing::ValuesIn(scenarios),
                         [](const testing::TestParamInfo<Scenario>& testCase) { return testCase.param.name; });

TEST_F(DomainSources, ResolvedThatNeverAnswersPassesToTheLeaseAfterTheCallTimeOut)
{
    std::string script = host.tmp.write("silent.py", silentResolved).string();
    ASSERT_TRUE(bus.startPeer({"/usr/bin/python3", script}, {"org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                             "org.freedesktop.DBus", "GetNameOwner", "s", resolve1}));
    leaseDomain("dhcp.example");
    EXPECT_EQ(com::torvane::api::getSearchDomain(), "dhcp.example");
}

}  // namespace
