#include <tvpolicy/agent/WifiManager.h>

#include <gtest/gtest.h>

#include <iostream>

#include "support/CaptureStream.h"
#include "support/DescribedNetwork.h"

namespace {

using com::torvane::WifiConfigurationProfile;
using testing_support::DescribedNetwork;
using testing_support::logMessages;
using Network = tvpolicy::NetworkProbe::WifiNetwork;

bool has(const std::vector<std::string>& lines, const std::string& line)
{
    return std::find(lines.begin(), lines.end(), line) != lines.end();
}

TEST(WifiManager, SecurityTableKeepsItsShiftedEnterpriseNumbers)
{
    const std::vector<std::pair<WifiConfigurationProfile::Security, int>> table = {
        {WifiConfigurationProfile::OPEN, 0},
        {WifiConfigurationProfile::WEP, 1},
        {WifiConfigurationProfile::WEP_ENTERPRISE, 4},
        {WifiConfigurationProfile::WPA, 2},
        {WifiConfigurationProfile::WPA_ENTERPRISE, 5},
        {WifiConfigurationProfile::WPA2, 3},
        {WifiConfigurationProfile::WPA2_ENTERPRISE, 6},
        {static_cast<WifiConfigurationProfile::Security>(7), 0}};
    WifiManager manager;
    for (const auto& [security, mode] : table) {
        WifiConfigurationProfile profile;
        profile.setSecurity(security);
        EXPECT_EQ(manager.getSecurityInt(profile), mode) << security;
    }
}

TEST(WifiManager, CurrentNetworkAsWideAndUtf8Text)
{
    DescribedNetwork d;
    WifiManager manager;
    EXPECT_EQ(manager.getCurrentProfileName(), L"");
    EXPECT_EQ(manager.getCurrentBSSID(), "");
    d.net.wifi = tvpolicy::NetworkProbe::WifiStatus{"wlan0", "Caf\xC3\xA9 \xF0\x9F\x93\xB6", "0a:1b:2c:3d:4e:5f"};
    EXPECT_EQ(manager.getCurrentProfileName(), std::wstring(L"Caf\u00E9 \U0001F4F6"));
    EXPECT_EQ(manager.getCurrentProfileNameUtf8(), "Caf\xC3\xA9 \xF0\x9F\x93\xB6");
    EXPECT_EQ(manager.getCurrentBSSID(), "0a:1b:2c:3d:4e:5f");
    d.net.wifi->ssid = "bad\xFF\xC3";
    EXPECT_EQ(manager.getCurrentProfileName(), std::wstring(L"bad\uFFFD\uFFFD"));
}

struct JoinCase {
    std::string what;
    std::string current;
    std::vector<Network> visible;
    int joinOnAttempt;
    bool joined;
    std::size_t attempts;
    bool enterprise;
    std::vector<std::string> mustLog;
};

class Join : public testing::TestWithParam<JoinCase> {};

TEST_P(Join, ScansAndMakesBoundedAttempts)
{
    const JoinCase& c = GetParam();
    DescribedNetwork d;
    d.net.wifi = tvpolicy::NetworkProbe::WifiStatus{"wlan0", c.current, ""};
    d.net.visible = c.visible;
    d.net.joinOnAttempt = c.joinOnAttempt;
    testing_support::CaptureStream log(std::clog);
    WifiManager manager;
    EXPECT_EQ(manager.connectToProfile(L"Campus", "secret", WifiConfigurationProfile::WPA2), c.joined);
    ASSERT_EQ(d.net.associations.size(), c.attempts);
    for (const auto& attempt : d.net.associations) {
        EXPECT_EQ(attempt.ssid, "Campus");
        EXPECT_EQ(attempt.enterprise, c.enterprise);
        EXPECT_EQ(attempt.password, "secret");
    }
    std::vector<std::string> lines = logMessages(log.text());
    EXPECT_EQ(lines.front(), "ConnectToProfile Name: Campus");
    for (const std::string& line : c.mustLog) {
        EXPECT_TRUE(has(lines, line)) << line << "\n" << log.text();
    }
}

const Network personal{"Campus", "0a:1b:2c:3d:4e:5f", {3}, "/ap/1", "<net Campus>"};
const Network enterprise{"Campus", "0a:1b:2c:3d:4e:5f", {3, 6}, "/ap/2", "<net Campus 802.1X>"};
const Network wpaEnterprise{"Campus", "0a:1b:2c:3d:4e:5f", {5}, "/ap/3", "<net Campus WPA 802.1X>"};

INSTANTIATE_TEST_SUITE_P(
    Cases, Join,
    testing::Values(
        JoinCase{"already there",
                 "Campus",
                 {personal},
                 1,
                 true,
                 0,
                 false,
                 {"ConnectToNetwork Already connected to target ssid"}},
        JoinCase{"not visible",
                 "Other",
                 {},
                 1,
                 false,
                 0,
                 false,
                 {"Current SSID = Other", "ConnectToProfile Network Signal Not Found..."}},
        JoinCase{"personal, first attempt",
                 "",
                 {personal},
                 1,
                 true,
                 1,
                 false,
                 {"Current SSID = (null)", "ConnectToProfile Signal: <net Campus>",
                  "connectToProfile attempting associateToNetwork.", "Current SSID 2 = (null)",
                  "connectToProfile AssociateToEnterpriseNetwork NSError: (null)",
                  "connectToProfile associateToNetwork completed."}},
        JoinCase{"enterprise, third attempt", "Other", {enterprise}, 3, true, 3, true, {"Current SSID 2 = Other"}},
        JoinCase{"WPA enterprise", "Other", {wpaEnterprise}, 1, true, 1, true, {}},
        JoinCase{"never joins", "Other", {personal}, 0, false, 3, false, {}}),
    [](const testing::TestParamInfo<JoinCase>& testCase) { return "case" + std::to_string(testCase.index); });

TEST(WifiManager, NoInterfaceGivesFalseAtOnce)
{
    DescribedNetwork d;
    testing_support::CaptureStream log(std::clog);
    WifiManager manager;
    WifiConfigurationProfile profile;
    profile.setSSID("Campus");
    EXPECT_FALSE(manager.connectToProfile(L"Campus", "", WifiConfigurationProfile::OPEN));
    EXPECT_FALSE(manager.createModifyProfile(profile));
    EXPECT_TRUE(d.net.stored.empty());
    std::vector<std::string> lines = logMessages(log.text());
    EXPECT_TRUE(has(lines, "ConnectToProfile: no Wi-Fi interface"));
    EXPECT_TRUE(has(lines, "CreateModifyProfile: no Wi-Fi interface"));
    EXPECT_FALSE(manager.createModifyProfile(L"a", L"b", L"c"));
    EXPECT_FALSE(manager.setProfilePosition(L"a", 0));
    EXPECT_FALSE(manager.reconnect(1, 1));
    EXPECT_TRUE(manager.isWifiAvailable());
}

TEST(WifiManager, ProfilesAreStoredOnceWithTheirSecurityAnd8021XName)
{
    DescribedNetwork d;
    d.net.wifi = tvpolicy::NetworkProbe::WifiStatus{"wlan0", "", ""};
    d.net.visible = {enterprise};
    WifiConfigurationProfile profile;
    profile.setSSID("Campus");
    profile.setSecurity(WifiConfigurationProfile::WPA2_ENTERPRISE);
    profile.setEapType(WifiConfigurationProfile::PEAP);
    profile.setPassword("pw");
    WifiManager manager;
    testing_support::CaptureStream log(std::clog);
    EXPECT_TRUE(manager.createModifyProfile(profile));
    ASSERT_EQ(d.net.stored.size(), 1u);
    const tvpolicy::NetworkProbe::WifiSettings& stored = d.net.stored.front();
    EXPECT_EQ(stored.ssid, "Campus");
    EXPECT_EQ(stored.securityMode, 6);
    EXPECT_EQ(stored.passphrase, "pw");
    EXPECT_EQ(stored.eapMethod, "peap");
    EXPECT_EQ(stored.name8021X, "Gatewarden Configured 802.1x Profile");
    ASSERT_EQ(d.net.associations.size(), 1u);
    EXPECT_TRUE(d.net.associations.front().enterprise);
    std::vector<std::string> lines = logMessages(log.text());
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 2),
              (std::vector<std::string>{"securityInt = 6", "kCWSecurityModeWPA2_Enterprise = 5"}));
    EXPECT_TRUE(has(lines, "CreateModifyProfile Signal: <net Campus 802.1X>"));
    EXPECT_TRUE(has(lines, "CreateModifyProfile: AssociateToEnterpriseNetwork NSError: (null)"));
    EXPECT_EQ(log.text().find("pw"), std::string::npos) << "the pass phrase is never logged";

    // The same profile again: not stored twice, already on the network.
    testing_support::CaptureStream again(std::clog);
    EXPECT_TRUE(manager.createModifyProfile(profile));
    EXPECT_EQ(d.net.stored.size(), 1u);
    lines = logMessages(again.text());
    EXPECT_TRUE(has(lines, "CreateModifyProfile: Specified Configuration Already Exists...exiting."));
    EXPECT_TRUE(has(lines, "CreateModifyProfile Already connected to target ssid"));

    // A personal profile: no 802.1X setting, personal association messages.
    WifiConfigurationProfile home;
    home.setSSID("Home");
    home.setSecurity(WifiConfigurationProfile::WPA);
    home.setPassword("pass phrase");
    d.net.visible = {Network{"Home", "aa:aa:aa:aa:aa:aa", {2}, "/ap/9", "<net Home>"}};
    testing_support::CaptureStream third(std::clog);
    EXPECT_TRUE(manager.createModifyProfile(home));
    EXPECT_EQ(d.net.stored.front(), (tvpolicy::NetworkProbe::WifiSettings{"Home", 2, "pass phrase", "", ""}));
    EXPECT_TRUE(has(logMessages(third.text()), "CreateModifyProfile: AssociateToNetwork NSError: (null)"));
}

TEST(WifiManager, AStoreErrorIsLoggedAndTheJoinStillTried)
{
    DescribedNetwork d;
    d.net.wifi = tvpolicy::NetworkProbe::WifiStatus{"wlan0", "", ""};
    d.net.storeError = "refused";
    d.net.scanError = "busy";
    WifiConfigurationProfile profile;
    profile.setSSID("Campus");
    testing_support::CaptureStream log(std::clog);
    EXPECT_FALSE(WifiManager().createModifyProfile(profile));
    std::vector<std::string> lines = logMessages(log.text());
    EXPECT_TRUE(has(lines, "CreateModifyProfile: commitConfiguration NSError: refused"));
    EXPECT_TRUE(has(lines, "NSError busy:"));
    EXPECT_TRUE(has(lines, "CreateModifyProfile Network Signal Not Found..."));
}

}  // namespace
