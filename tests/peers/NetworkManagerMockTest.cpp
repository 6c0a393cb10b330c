// The Wi-Fi manager and `tvpolicy wifi` against NetworkManager as python3-dbusmock's template
// plays it, on a private system-like bus that the test starts and stops.
#include <tvpolicy/agent/WifiManager.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>

#include <nlohmann/json.hpp>

#include "support/PrivateBus.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::CliResult;
using testing_support::runProgram;
using Json = nlohmann::json;

const char* const device = "/org/freedesktop/NetworkManager/Devices/wifi0";
constexpr unsigned keyMgmtPsk = 0x100;
constexpr unsigned keyMgmt8021X = 0x200;

class MockedNetworkManager : public testing_support::PrivateBusTest {
protected:
    void SetUp() override
    {
        PrivateBusTest::SetUp();
        if (IsSkipped() || HasFatalFailure()) {
            return;
        }
        ASSERT_TRUE(
            bus.startMock("networkmanager", {"org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager",
                                             "org.freedesktop.NetworkManager", "GetDevices"}))
            << "the NetworkManager mock did not come up";
    }

    CliResult busctl(const std::vector<std::string>& args) { return bus.busctl(args); }

    // A method of the mock's control interface; its JSON reply.
    Json control(const std::string& method, const std::string& signature, const std::vector<std::string>& args)
    {
        std::vector<std::string> call = {"org.freedesktop.NetworkManager", "/org/freedesktop/NetworkManager",
                                         "org.freedesktop.DBus.Mock", method, signature};
        call.insert(call.end(), args.begin(), args.end());
        return bus.call(call);
    }

    void addWifiDevice() { control("AddWiFiDevice", "ssi", {"wifi0", "wlan0", "100"}); }

    std::string addAccessPoint(const std::string& name, const std::string& ssid, const std::string& bssid,
                               unsigned security)
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
};

TEST_F(MockedNetworkManager, StatusShowsTheActiveAccessPoint)
{
    addWifiDevice();
    std::string ap = addAccessPoint("home", "Home", "0A:1B:2C:3D:4E:5F", keyMgmtPsk);
    std::string connection = control("AddWiFiConnection", "ssss", {device, "home", "Home", "wpa-psk"})["data"][0];
    control("AddActiveConnection", "assssu", {"1", device, connection, ap, "home", "2"});

    CliResult status = testing_support::runCli({"wifi", "status", "--json"});
    ASSERT_EQ(status.exitCode, 0) << status.err;
    EXPECT_EQ(Json::parse(status.out),
              (Json{{"interface", "wlan0"}, {"ssid", "Home"}, {"bssid", "0A:1B:2C:3D:4E:5F"}}));
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
    ASSERT_EQ(
        join("<profile><SSID>Guest</SSID><securityType>WPA</securityType><password>guest pass</password></profile>")
            .exitCode,
        0);
    ASSERT_EQ(join("<profile><SSID>Lab</SSID><securityType>WPA2</securityType><password>lab key</password></profile>")
                  .exitCode,
              0);
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
    EXPECT_EQ(joined.out, "Not on Campus (run with -v to see why)\n");

    CliResult noBus = runProgram({"env", "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus", TVPOLICY_CLI, "-v",
                                  "wifi", "join", (tmp.path() / "profile.xml").string()});
    EXPECT_EQ(noBus.exitCode, 1);
    EXPECT_NE(noBus.err.find("CreateModifyProfile: no Wi-Fi interface"), std::string::npos) << noBus.err;
    EXPECT_EQ(noBus.out, "Not on Campus (the lines above say why)\n");  // -v was given
}

}  // namespace
