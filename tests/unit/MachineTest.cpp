#include <tvpolicy/host/Machine.h>

#include <gtest/gtest.h>

#include "support/CaptureStream.h"
#include "support/RecordingHost.h"

namespace {

using testing_support::RecordingHost;
using tvpolicy::ScopedHost;

struct VersionCase {
    std::string name;
    std::string version;
    std::string osVersion;
    std::string osString;
};

class MachineVersionTest : public testing::TestWithParam<VersionCase> {};

TEST_P(MachineVersionTest, StripsEveryNewlineAndLogsTheVersion)
{
    RecordingHost host;
    host.productName = GetParam().name;
    host.productVersion = GetParam().version;
    ScopedHost scope(host);
    testing_support::CaptureStream out(std::cout);
    EXPECT_EQ(Machine::getOSVersion(), GetParam().osVersion);
    EXPECT_EQ(testing_support::logMessages(out.text()), std::vector<std::string>{"Version = " + GetParam().osVersion});
    EXPECT_EQ(Machine::getOSString(), GetParam().osString);
}

INSTANTIATE_TEST_SUITE_P(Versions, MachineVersionTest,
                         testing::Values(VersionCase{"Mac OS X\n", "10.15.7\n", "10.15.7", "Mac OS X 10.15.7"},
                                         VersionCase{"Debian GNU/Linux", "12", "12", "Debian GNU/Linux 12"},
                                         VersionCase{"Odd\nName\n", "\n10.\n6\n", "10.6", "OddName 10.6"},
                                         VersionCase{"", "", "", " "}));

TEST(Machine, HostNameIsCutAtTheFirstDot)
{
    const std::vector<std::pair<std::string, std::string>> cases = {{"alpha", "alpha"},
                                                                    {"alpha.lan", "alpha"},
                                                                    {"alpha.corp.example.com", "alpha"},
                                                                    {".hidden.lan", "hidden"},
                                                                    {"...", ""},
                                                                    {"", ""}};
    for (const auto& [node, hostName] : cases) {
        RecordingHost host;
        host.node = node;
        ScopedHost scope(host);
        EXPECT_EQ(Machine::getHostName(), hostName) << node;
    }
}

using Identity = tvpolicy::HostProbe::HardwareIdentity;

TEST(Machine, HardwareDescriptionJoinsWhatTheHardwareRecords)
{
    const std::vector<std::pair<Identity, std::string>> cases = {
        {{"Apple Inc.", "MacBookPro8,1", "1.0", {}, {}}, "Apple Inc. MacBookPro8,1 1.0"},
        {{{}, "MacBookPro8,1", "1.0", {}, {}}, " MacBookPro8,1 1.0"},
        {{"LENOVO", {}, "ThinkPad X1", {}, {}}, "LENOVO ThinkPad X1"},
        {{"LENOVO", "20KH", {}, {}, {}}, "LENOVO 20KH"},
        {{"QEMU", "", "", {}, {}}, "QEMU  "},
        {{}, ""}};
    for (const auto& [identity, description] : cases) {
        RecordingHost host;
        host.hardware = identity;
        ScopedHost scope(host);
        EXPECT_EQ(Machine::getHardwareDesc(), description);
    }
}

TEST(Machine, IdentityTextsAreCutAt127Characters)
{
    RecordingHost host;
    host.hardware.uuid = std::string(200, 'u');
    host.hardware.serialNumber = "C02ABC123";
    ScopedHost scope(host);
    EXPECT_EQ(Machine::getSystemUUID(), std::string(127, 'u'));
    EXPECT_EQ(Machine::getSystemSerialNumber(), "C02ABC123");

    host.hardware = Identity{};
    EXPECT_EQ(Machine::getSystemUUID(), "");
    EXPECT_EQ(Machine::getSystemSerialNumber(), "");
}

TEST(Machine, LaunchBrowserHandsTheURLOverUntouched)
{
    RecordingHost host;
    ScopedHost scope(host);
    Machine::launchBrowser("https://nac.example/login?a=1&b='2'");
    EXPECT_EQ(host.openedURLs, std::vector<std::string>{"https://nac.example/login?a=1&b='2'"});
}

TEST(Machine, ActionsOfOtherPlatformsDoNothing)
{
    RecordingHost host;
    ScopedHost scope(host);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Machine::showMessage("Error reading section.", "", "");
    Machine::shutdown();
    Machine::restart();
    Machine::logOut();
    Machine::clearBrowserCache();
    Machine::clearDNSCache();
    Machine::enableAutoUpdate();
    Machine::disableEthernetBridge();
    Machine::enablePing();
    Machine::enableFirewall();
    Machine::addUser("eve", "secret");
    Machine::enableDHCP();
    Machine::sleep(3600);
    Machine::setHostName("renamed");
    EXPECT_FALSE(Machine::hotFixInstalled("KB123"));
    EXPECT_FALSE(Machine::updatesInstalled());
    EXPECT_FALSE(Machine::restartService("sshd"));
    EXPECT_EQ(Machine::execute("/bin/rm", "-rf /"), 0);
    EXPECT_EQ(Machine::getSystemAssetTag(), "");
    EXPECT_EQ(Machine::getJoinedDomain(), "");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(host.commandsRun.empty());
    EXPECT_TRUE(host.openedURLs.empty());
}

}  // namespace
