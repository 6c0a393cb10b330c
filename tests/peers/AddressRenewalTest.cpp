// DHCP renewal of an interface on a private bus: NetworkManager (dbusmock's template) is asked
// to re-activate the connection active on the interface's device; when it is not on the bus or
// has nothing active there, `networkctl renew` is run instead (a stand-in that records its
// arguments, first on a PATH of the test's own). The status line tells whether it was asked.
#include <tvpolicy/host/NetworkInterface.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "support/NetworkManagerMock.h"
#include "support/PrivateBus.h"
#include "support/TempDir.h"

namespace {

using com::torvane::api::NetworkInterface;

const std::string renewed = "Mac-OS-X DHCP Renew Status = 1\n";
const std::string notRenewed = "Mac-OS-X DHCP Renew Status = 0\n";

class AddressRenewal : public testing_support::PrivateBusTest {
protected:
    // A networkctl first on the PATH of renew() that records its arguments, one a line, and
    // exits with `status`; none at all when `status` is empty.
    void networkctl(std::optional<int> status)
    {
        std::filesystem::path bin = tmp.path() / "bin";
        std::filesystem::create_directories(bin);
        path_ = bin.string();
        if (status) {
            tmp.write("bin/networkctl", "#!/bin/sh\nprintf '%s\\n' \"$@\" >> '" + (tmp.path() / "calls").string() +
                                            "'\nexit " + std::to_string(*status) + "\n");
            std::filesystem::permissions(bin / "networkctl", std::filesystem::perms::owner_all);
            path_ += ":/usr/bin:/bin";
        }
    }

    std::string networkctlCalls() const
    {
        return std::filesystem::exists(tmp.path() / "calls") ? testing_support::readFile(tmp.path() / "calls") : "";
    }

    // Renews `name`, through the authorized form when `authorized`; what it printed.
    std::string renew(const std::string& name, bool authorized = false)
    {
        const char* saved = std::getenv("PATH");
        std::string previous = saved != nullptr ? saved : "/usr/bin:/bin";
        ::setenv("PATH", path_.c_str(), 1);
        NetworkInterface interface;
        interface.setName(name);
        int authorization = 0;
        testing::internal::CaptureStdout();
        if (authorized) {
            interface.renewIPAddressAuth(&authorization);
        } else {
            interface.renewIPAddress();
        }
        std::string printed = testing::internal::GetCapturedStdout();
        ::setenv("PATH", previous.c_str(), 1);
        return printed;
    }

    testing_support::TempDir tmp;
    testing_support::NetworkManagerMock nm{bus};
    std::string path_;
};

TEST_F(AddressRenewal, NetworkManagerReactivatesTheConnectionOfTheInterfacesDevice)
{
    ASSERT_TRUE(nm.start());
    networkctl(0);
    testing_support::NetworkManagerMock::Wired eth0 = nm.addActiveWired("eth0");
    testing_support::NetworkManagerMock::Wired eth1 = nm.addActiveWired("eth1");
    ASSERT_FALSE(eth1.active.empty());

    EXPECT_EQ(renew("eth1"), renewed);
    EXPECT_EQ(renew("eth0", true), renewed);
    const std::vector<nlohmann::json> calls = nm.callsOf("ActivateConnection");
    ASSERT_EQ(calls.size(), 2u);
    const auto arguments = [](const nlohmann::json& call) {
        std::vector<std::string> values;
        for (const nlohmann::json& argument : call) {
            values.push_back(argument["data"]);
        }
        return values;
    };
    EXPECT_EQ(arguments(calls[0]), (std::vector<std::string>{eth1.connection, eth1.device, "/"}));
    EXPECT_EQ(arguments(calls[1]), (std::vector<std::string>{eth0.connection, eth0.device, "/"}));
    EXPECT_EQ(networkctlCalls(), "");
}

struct Fallback {
    const char* name;
    enum { NoNetworkManager, UnknownInterface, NothingActive, ActivationRefused } bus;
    std::string interface;
    std::optional<int> networkctlStatus;
    std::string printed;
    std::string networkctlCalls;
};

void PrintTo(const Fallback& fallback, std::ostream* out) { *out << fallback.name; }

const Fallback fallbacks[] = {
    {"WithoutNetworkManager", Fallback::NoNetworkManager, "eth0", 0, renewed, "renew\neth0\n"},
    {"NetworkManagerWithoutTheInterface", Fallback::UnknownInterface, "eth1", 0, renewed, "renew\neth1\n"},
    {"NetworkManagerWithNothingActive", Fallback::NothingActive, "eth0", 0, renewed, "renew\neth0\n"},
    {"NetworkManagerRefusesTheActivation", Fallback::ActivationRefused, "eth0", 0, renewed, "renew\neth0\n"},
    {"NetworkctlRefuses", Fallback::NoNetworkManager, "eth0", 1, notRenewed, "renew\neth0\n"},
    {"NameWithShellCharacters", Fallback::NoNetworkManager, "it's $x", 0, renewed, "renew\nit's $x\n"},
    {"NoNetworkctl", Fallback::UnknownInterface, "eth1", std::nullopt, notRenewed, ""},
};

class RenewalFallback : public AddressRenewal, public testing::WithParamInterface<Fallback> {};

TEST_P(RenewalFallback, NetworkctlIsAskedAndItsAnswerReported)
{
    const Fallback& c = GetParam();
    if (c.bus != Fallback::NoNetworkManager) {
        ASSERT_TRUE(nm.start());
        if (c.bus == Fallback::NothingActive) {
            nm.addEthernetDevice("eth0");
        } else {
            testing_support::NetworkManagerMock::Wired eth0 = nm.addActiveWired("eth0");
            if (c.bus == Fallback::ActivationRefused) {
                // The active connection names a stored connection that is gone.
                ASSERT_EQ(bus.busctl({"set-property", testing_support::NetworkManagerMock::service, eth0.active,
                                      "org.freedesktop.NetworkManager.Connection.Active", "Connection", "o",
                                      "/org/freedesktop/NetworkManager/Settings/99"})
                              .exitCode,
                          0);
            }
        }
    }
    networkctl(c.networkctlStatus);
    EXPECT_EQ(renew(c.interface), c.printed);
    EXPECT_EQ(networkctlCalls(), c.networkctlCalls);
    if (c.bus != Fallback::NoNetworkManager) {
        EXPECT_EQ(nm.callsOf("ActivateConnection").size(), c.bus == Fallback::ActivationRefused ? 1u : 0u);
    }
}

INSTANTIATE_TEST_SUITE_P(Renewal, RenewalFallback, testing::ValuesIn(fallbacks),
                         [](const testing::TestParamInfo<Fallback>& testCase) { return testCase.param.name; });

}  // namespace
