// The Wi-Fi manager and `tvpolicy wifi` against NetworkManager as python3-dbusmock's template
// plays it, on a private system-like bus that the test starts and stops.
#include <tvpolicy/agent/WifiManager.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>

#include <nlohmann/json.hpp>

#include "support/ChildProcess.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::CliResult;
using testing_support::runProgram;
using Json = nlohmann::json;

const char* const device = "/org/freedesktop/NetworkManager/Devices/wifi0";
constexpr unsigned keyMgmtPsk = 0x100;
constexpr unsigned keyMgmt8021X = 0x200;

class MockedNetworkManager : public testing::Test {
protected:
    void SetUp() override
    {
        if (::access("/usr/bin/dbus-daemon", X_OK) != 0 ||
            std::system("/usr/bin/python3 -c 'import dbusmock' >/dev/null 2>&1") != 0) {
            GTEST_SKIP() << "dbus-daemon or python3-dbusmock is not installed";
        }
        socket = (tmp.path() / "bus").string();
        std::string config = tmp.write("bus.conf",
            "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-BUS Bus Configuration 1.0//EN\" "
            "\"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
            "<busconfig><type>system</type><listen>unix:path=" + socket + "</listen><auth>EXTERNAL</auth>"
            "<policy context=\"default\"><allow user=\"*\"/><allow own=\"*\"/><allow send_destination=\"*\"/>"
            "<allow receive_sender=\"*\"/></policy></busconfig>\n").string();
        daemon = std::make_unique<testing_support::ChildProcess>(
            std::vector<std::string>{"dbus-daemon", "--config-file=" + config, "--nofork"});
        for (int i = 0; i < 100 && !std::filesystem::exists(socket); ++i) {
            ::usleep(50'000);
        }
        ASSERT_TRUE(std::filesystem::exists(socket)) << "the bus did not start";
        const char* previous = std::getenv("DBUS_SYSTEM_BUS_ADDRESS");
        savedAddress = previous != nullptr ? std::optional<std::string>(previous) : std::nullopt;
        ::setenv("DBUS_SYSTEM_BUS_ADDRESS", ("unix:path=" + socket).c_str(), 1);
        mock = std::make_unique<testing_support::ChildProcess>(
            std::vector<std::string>{"/usr/bin/python3", "-m", "dbusmock", "--template", "networkmanager"});
        bool ready = false;
        for (int i = 0; i < 200 && !ready; ++i) {
            ready = busctl({"call", "org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager",
                            "org.freedesktop.NetworkManager", "GetDevices"}).exitCode == 0;
            if (!ready) {
                ::usleep(50'000);
            }
        }
        ASSERT_TRUE(ready) << "the NetworkManager mock did not come up";
    }

    void TearDown() override
    {
        mock.reset();
        daemon.reset();
        if (savedAddress) {
            ::setenv("DBUS_SYSTEM_BUS_ADDRESS", savedAddress->c_str(), 1);
        } else {
            ::unsetenv("DBUS_SYSTEM_BUS_ADDRESS");
        }
    }

    CliResult busctl(std::vector<std::string> args)
    {
        args.insert(args.begin(), {"busctl", "--address=unix:path=" + socket, "--json=short"});
        return runProgram(args);
    }

    // A method of the mock's control interface; its JSON reply.
    Json control(const std::string& method, const std::string& signature, const std::vector<std::string>& args)
    {
        std::vector<std::string> call = {"call", "org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager",
                                         "org.freedesktop.DBus.Mock", method, signature};
        call.insert(call.end(), args.begin(), args.end());
        CliResult result = busctl(call);
        EXPECT_EQ(result.exitCode, 0) << method << ": " << result.err;
        return result.out.empty() ? Json() : Json::parse(result.out);
    }

    void addWifiDevice() { control("AddWiFiDevice", "ssi", {"wifi0", "wlan0", "100"}); }

    std::string addAccessPoint(const std::string& name, const std::string& ssid, const std::string& bssid, unsigned security)
    {
        return control("AddAccessPoint", "ssssuuuyu",
                       {device, name, ssid, bssid, "2", "2437", "54000", "80", std::to_string(security)})["data"][0];
    }

    std::vector<std::string> connections()
    {
        CliResult result = busctl({"call", "org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager/Settings",
                                   "org.freedesktop.NetworkManager.Settings", "ListConnections"});
        return Json::parse(result.out)["data"][0].get<std::vector<std::string>>();
    }

    Json settingsOf(const std::string& path)
    {
        CliResult result = busctl({"call", "org.freedesktop.NetworkManager", path,
                                   "org.freedesktop.NetworkManager.Settings.Connection", "GetSettings"});
        return Json::parse(result.out)["data"][0];
    }

    CliResult join(const std::string& profileXml)
    {
        return testing_support::runCli({"wifi", "join", tmp.write("profile.xml", profileXml).string()});
    }

    testing_support::TempDir tmp;
    std::string socket;
    std::optional<std::string> savedAddress;
    std::unique_ptr<testing_support::ChildProcess> daemon;
    std::unique_ptr<testing_support::ChildProcess> mock;
};

TEST_F(MockedNetworkManager, StatusShowsTheActiveAccessPoint)
{
    addWifiDevice();
    std::string ap = addAccessPoint("home", "Home", "0A:1B:2C:3D:4E:5F", keyMgmtPsk);
    std::string connection = control("AddWiFiConnection", "ssss", {device, "home", "Home", "wpa-psk"})["data"][0];
    control("AddActiveConnection", "assssu", {"1", device, connection, ap, "home", "2"});

    CliResult status = testing_support::runCli({"wifi", "status", "--json"});
    ASSERT_EQ(status.exitCode, 0) << status.err;
    EXPECT_EQ(Json::parse(status.out), (Json{{"interface", "wlan0"}, {"ssid", "Home"}, {"bssid", "0A:1B:2C:3D:4E:5F"}}));
    WifiManager manager;
    EXPECT_EQ(manager.getCurrentProfileName(), L"Home");
    EXPECT_EQ(manager.getCurrentBSSID(), "0A:1B:2C:3D:4E:5F");
}

TEST_F(MockedNetworkManager, JoinStoresEnterpriseSettingsOnceAndJoins)
{
    addWifiDevice();
    addAccessPoint("campus", "Campus", "0A:1B:2C:3D:4E:60", keyMgmt8021X);
    const std::string profile =
        "<profile><name>Campus</name><SSID>Campus</SSID><securityType>WPA2_ENTERPRISE</securityType>"
        "<EAPConfig>PEAP</EAPConfig><password>pw</password></profile>";
    CliResult joined = join(profile);
    EXPECT_EQ(joined.exitCode, 0) << joined.out << joined.err;
    EXPECT_EQ(joined.out, "Joined Campus\n");

    std::vector<std::string> stored = connections();
    ASSERT_EQ(stored.size(), 1u);
    Json settings = settingsOf(stored.front());
    EXPECT_EQ(settings["connection"]["id"]["data"], "Gatewarden Configured 802.1x Profile");
    EXPECT_EQ(settings["connection"]["type"]["data"], "802-11-wireless");
    EXPECT_EQ(settings["802-11-wireless"]["ssid"]["data"], (std::vector<int>{'C', 'a', 'm', 'p', 'u', 's'}));
    EXPECT_EQ(settings["802-11-wireless-security"]["key-mgmt"]["data"], "wpa-eap");
    EXPECT_EQ(settings["802-11-wireless-security"]["proto"]["data"], std::vector<std::string>{"rsn"});
    EXPECT_EQ(settings["802-1x"]["eap"]["data"], std::vector<std::string>{"peap"});
    EXPECT_EQ(settings["802-1x"]["password"]["data"], "pw");

    CliResult status = testing_support::runCli({"wifi", "status"});
    EXPECT_NE(status.out.find("SSID:       Campus"), std::string::npos) << status.out;

    // The same profile again: nothing stored twice, and already on the network.
    CliResult again = join(profile);
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_EQ(connections().size(), 1u);
}

TEST_F(MockedNetworkManager, PersonalProfilesCarryTheirKeyAndArePreferred)
{
    addWifiDevice();
    addAccessPoint("guest", "Guest", "0A:1B:2C:3D:4E:61", keyMgmtPsk);
    addAccessPoint("lab", "Lab", "0A:1B:2C:3D:4E:62", keyMgmtPsk);
    ASSERT_EQ(join("<profile><SSID>Guest</SSID><securityType>WPA</securityType><password>guest pass</password></profile>")
                  .exitCode, 0);
    ASSERT_EQ(join("<profile><SSID>Lab</SSID><securityType>WPA2</securityType><password>lab key</password></profile>")
                  .exitCode, 0);
    std::vector<std::string> stored = connections();
    ASSERT_EQ(stored.size(), 2u);
    Json guest = settingsOf(stored[0]);
    Json lab = settingsOf(stored[1]);
    EXPECT_EQ(guest["connection"]["id"]["data"], "Guest");
    EXPECT_EQ(guest["802-11-wireless-security"]["key-mgmt"]["data"], "wpa-psk");
    EXPECT_EQ(guest["802-11-wireless-security"]["proto"]["data"], std::vector<std::string>{"wpa"});
    EXPECT_EQ(guest["802-11-wireless-security"]["psk"]["data"], "guest pass");
    EXPECT_EQ(guest.count("802-1x"), 0u);
    EXPECT_EQ(lab["802-11-wireless-security"]["proto"]["data"], std::vector<std::string>{"rsn"});
    EXPECT_GT(lab["connection"]["autoconnect-priority"]["data"].get<int>(),
              guest["connection"]["autoconnect-priority"]["data"].get<int>());
}

TEST_F(MockedNetworkManager, WithoutWifiDeviceOrBusEverythingFailsAtOnce)
{
    CliResult status = testing_support::runCli({"wifi", "status"});
    EXPECT_EQ(status.exitCode, 1);
    EXPECT_EQ(status.out, "No Wi-Fi interface (or NetworkManager is not running)\n");
    CliResult joined = join("<profile><SSID>Campus</SSID></profile>");
    EXPECT_EQ(joined.exitCode, 1);
    EXPECT_TRUE(connections().empty());

    CliResult noBus = runProgram({"env", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus", TVPOLICY_CLI, "-v",
                                  "wifi", "join", (tmp.path() / "profile.xml").string()});
    EXPECT_EQ(noBus.exitCode, 1);
    EXPECT_NE(noBus.err.find("CreateModifyProfile: no Wi-Fi interface"), std::string::npos) << noBus.err;
}

}  // namespace
