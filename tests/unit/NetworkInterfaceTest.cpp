#include <tvpolicy/host/NetworkInterface.h>
#include <tvpolicy/host/NetworkInterfaceXML.h>

#include <gtest/gtest.h>

#include <iostream>

#include "support/CaptureStream.h"
#include "support/DescribedNetwork.h"

namespace {

using com::torvane::api::NetworkInterface;
using com::torvane::api::NetworkInterfaceMap;
using testing_support::DescribedNetwork;
using testing_support::logMessages;

constexpr unsigned int ethernetUp = 0x1043;  // UP BROADCAST RUNNING MULTICAST
constexpr unsigned int loopback = 0x49;      // UP LOOPBACK RUNNING
constexpr unsigned int tunnelUp = 0x10D1;    // UP POINTOPOINT RUNNING NOARP MULTICAST
constexpr unsigned int tunnelIdle = 0x1091;  // the same, not running

struct Inventory {
    Inventory() { NetworkInterface::getInstances(map); }
    ~Inventory() { NetworkInterface::freeInstances(map); }
    std::vector<std::string> keys() const
    {
        std::vector<std::string> out;
        for (const auto& entry : map) {
            out.push_back(entry.first);
        }
        return out;
    }
    NetworkInterfaceMap map;
};

std::vector<std::string> ipv4(const NetworkInterface* i)
{
    std::vector<std::string> out;
    i->getIPv4Addresses(out);
    return out;
}

std::vector<std::string> ipv6(const NetworkInterface* i)
{
    std::vector<std::string> out;
    i->getIPv6Addresses(out);
    return out;
}

TEST(NetworkInventory, AnInterfaceListedThreeTimesGivesOneObjectWithItsAddresses)
{
    DescribedNetwork d;
    d.link("eth0", ethernetUp);
    d.ipv4("eth0", ethernetUp, "10.0.0.5");
    d.ipv6("eth0", ethernetUp, "fe80::1");
    d.ipv4("eth0", ethernetUp, "10.0.0.6");
    d.wired("eth0", "00:1B:63:AB:CD:EF", true);
    d.net.suffix = "corp.example";
    Inventory inventory;
    ASSERT_EQ(inventory.keys(), std::vector<std::string>{"00:1B:63:AB:CD:EF"});
    const NetworkInterface* eth0 = inventory.map.begin()->second;
    EXPECT_EQ(eth0->getName(), "eth0");
    EXPECT_EQ(ipv4(eth0), (std::vector<std::string>{"10.0.0.5", "10.0.0.6"}));
    EXPECT_EQ(ipv6(eth0), std::vector<std::string>{"fe80::1"});
    EXPECT_EQ(eth0->getIPv4Address(), "10.0.0.5");
    EXPECT_EQ(eth0->getMedium(), "Wired");
    EXPECT_EQ(eth0->getDNSSuffix(), "corp.example");
    EXPECT_TRUE(eth0->isUp());
    EXPECT_TRUE(eth0->getESSID().empty());
}

struct AdmissionCase {
    std::string what;
    std::function<void(DescribedNetwork&)> describe;
    std::vector<std::string> keys;
    std::vector<std::string> log;
};

class Admission : public testing::TestWithParam<AdmissionCase> {};

TEST_P(Admission, KeepsHardwareAndUpTunnelsOnly)
{
    DescribedNetwork d;
    GetParam().describe(d);
    testing_support::CaptureStream log(std::clog);
    Inventory inventory;
    EXPECT_EQ(inventory.keys(), GetParam().keys);
    EXPECT_EQ(logMessages(log.text()), GetParam().log);
}

INSTANTIATE_TEST_SUITE_P(
    Rules, Admission,
    testing::Values(
        AdmissionCase{"loopback",
                      [](DescribedNetwork& d) {
                          d.ipv4("lo", loopback, "127.0.0.1");
                          d.ipv6("lo", loopback, "::1");
                      },
                      {},
                      {"Skipping interface 'lo' isLoopback: 1 flags: 0x49"}},
        AdmissionCase{"loopback with a hardware address",
                      [](DescribedNetwork& d) {
                          d.ipv4("lo", loopback, "127.0.0.1");
                          d.wired("lo", "00:00:00:00:00:01", true);
                      },
                      {},
                      {"Skipping interface 'lo' isLoopback: 1 flags: 0x49"}},
        AdmissionCase{
            "tunnel up and running", [](DescribedNetwork& d) { d.ipv4("tun0", tunnelUp, "10.8.0.2"); }, {"tun0"}, {}},
        AdmissionCase{"tunnel not running",
                      [](DescribedNetwork& d) { d.ipv4("tun0", tunnelIdle, "10.8.0.2"); },
                      {},
                      {"Skipping interface 'tun0' isLoopback: 0 flags: 0x1091"}},
        AdmissionCase{"Ethernet port without medium",
                      [](DescribedNetwork& d) {
                          d.link("eth1", ethernetUp);
                          d.net.hardware["eth1"] = {"00:1B:63:00:00:01", ""};
                      },
                      {},
                      {"Skipping interface 'eth1' isLoopback: 0 flags: 0x1043"}},
        AdmissionCase{"medium that cannot be read",
                      [](DescribedNetwork& d) {
                          d.link("eth2", ethernetUp);
                          d.net.hardware["eth2"] = {"00:1B:63:00:00:02", "Unknown"};
                      },
                      {"00:1B:63:00:00:02"},
                      {"medium is unknown; no dictionary found ", "getCurrentProfileName: no Wi-Fi interface",
                       "getCurrentBSSID: no Wi-Fi interface", "bssid from airport "}},
        AdmissionCase{"IPv6 and link entries of other hardware are not candidates",
                      [](DescribedNetwork& d) {
                          d.ipv6("sit0", ethernetUp, "::5");
                          d.link("sit0", ethernetUp, false);
                          d.wired("sit0", "00:1B:63:00:00:03", true);
                      },
                      {},
                      {}},
        AdmissionCase{"the first interface with a MAC wins",
                      [](DescribedNetwork& d) {
                          d.link("eth0", ethernetUp);
                          d.link("eth0.5", ethernetUp);
                          d.wired("eth0", "00:1B:63:00:00:04", true);
                          d.wired("eth0.5", "00:1B:63:00:00:04", false);
                      },
                      {"00:1B:63:00:00:04"},
                      {}},
        AdmissionCase{"a lookup that fails twice is retried",
                      [](DescribedNetwork& d) {
                          d.link("eth0", ethernetUp);
                          d.wired("eth0", "00:1B:63:00:00:05", true);
                          d.net.failingLookups["eth0"] = 2;
                      },
                      {"00:1B:63:00:00:05"},
                      {"Skipping interface 'eth0'", "Skipping interface 'eth0'"}},
        AdmissionCase{"a lookup that keeps failing is given up after three attempts",
                      [](DescribedNetwork& d) {
                          d.link("eth0", ethernetUp);
                          d.link("eth1", ethernetUp);
                          d.wired("eth0", "00:1B:63:00:00:06", true);
                          d.wired("eth1", "00:1B:63:00:00:07", true);
                          d.net.failingLookups["eth0"] = 1000;
                      },
                      {"00:1B:63:00:00:07"},
                      {"Skipping interface 'eth0'", "Skipping interface 'eth0'", "Skipping interface 'eth0'"}}),
    [](const testing::TestParamInfo<AdmissionCase>& testCase) { return "case" + std::to_string(testCase.index); });

TEST(NetworkInventory, AnUnreadableListLeavesTheMapAlone)
{
    DescribedNetwork d;
    d.net.addresses.reset();
    NetworkInterfaceMap map{{"x", nullptr}};
    NetworkInterface::getInstances(map);
    EXPECT_EQ(map.size(), 1u);
    std::vector<std::string> addresses{"keep"};
    NetworkInterface::getIPAddresses(addresses);
    EXPECT_EQ(addresses, std::vector<std::string>{"keep"});
}

TEST(NetworkInventory, ALinkThatCannotBeReadIsDownWithAnError)
{
    DescribedNetwork d;
    d.link("eth0", ethernetUp);
    d.wired("eth0", "00:1B:63:00:00:08", true);
    d.net.links["eth0"] = {true, ENODEV};
    testing::internal::CaptureStderr();
    Inventory inventory;
    std::string err = testing::internal::GetCapturedStderr();
    EXPECT_EQ(err, "Error: No such device\n");
    ASSERT_EQ(inventory.map.size(), 1u);
    EXPECT_FALSE(inventory.map.begin()->second->isUp());
}

TEST(NetworkInventory, HardwareAndLinksReadWithTheListAreTakenWithoutLookups)
{
    DescribedNetwork d;
    // What a lookup would say, which the entries' own details overrule.
    d.wired("eth0", "00:1B:63:00:00:01", false);
    d.wired("tun0", "", true);
    d.link("eth0", ethernetUp);
    d.ipv4("eth0", ethernetUp, "10.0.0.5");
    d.ipv4("tun0", tunnelUp, "10.8.0.1");
    for (auto& entry : *d.net.addresses) {
        bool eth = entry.name == "eth0";
        entry.hardware = tvpolicy::NetworkProbe::Hardware{eth ? "02:00:00:00:00:0E" : "", eth ? "Wired" : ""};
        entry.link = tvpolicy::NetworkProbe::LinkState{eth, eth ? 0 : ENOENT};
    }
    testing::internal::CaptureStderr();
    Inventory inventory;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Error: No such file or directory\n");
    EXPECT_EQ(inventory.keys(), (std::vector<std::string>{"02:00:00:00:00:0E", "tun0"}));
    EXPECT_TRUE(inventory.map["02:00:00:00:00:0E"]->isUp());
    EXPECT_EQ(ipv4(inventory.map["02:00:00:00:00:0E"]), std::vector<std::string>{"10.0.0.5"});
    EXPECT_FALSE(inventory.map["tun0"]->isUp());
    EXPECT_TRUE(d.net.lookups.empty());
}

TEST(NetworkInventory, WirelessInterfacesCarryTheNetworkAndANormalisedBssid)
{
    for (bool managerKnowsBssid : {true, false}) {
        DescribedNetwork d;
        d.link("wlan0", ethernetUp);
        d.net.hardware["wlan0"] = {"00:1B:63:00:00:09", "Wireless"};
        d.net.wifi =
            tvpolicy::NetworkProbe::WifiStatus{"wlan0", "Campus", managerKnowsBssid ? "0a:1b:2c:3d:4e:5f" : ""};
        d.net.bssidTool = "iw-link";
        d.net.outputs["iw-link"] = "aa:bb:cc:dd:ee:ff";
        testing_support::CaptureStream log(std::clog);
        Inventory inventory;
        ASSERT_EQ(inventory.map.size(), 1u);
        const NetworkInterface* wlan = inventory.map.begin()->second;
        EXPECT_EQ(wlan->getESSID(), "Campus");
        EXPECT_EQ(wlan->getBSSID(), managerKnowsBssid ? "0A:1B:2C:3D:4E:5F" : "AA:BB:CC:DD:EE:FF");
        std::vector<std::string> lines = logMessages(log.text());
        EXPECT_EQ(lines, managerKnowsBssid ? std::vector<std::string>{}
                                           : std::vector<std::string>{"bssid from airport aa:bb:cc:dd:ee:ff"});
    }
}

TEST(NetworkInventory, AddressesAndSearchDomains)
{
    DescribedNetwork d;
    d.ipv4("lo", loopback, "127.0.0.1");
    d.link("eth0", ethernetUp);
    d.ipv6("lo", loopback, "::1");
    d.ipv4("eth0", ethernetUp, "10.0.0.5");
    std::vector<std::string> addresses{"first"};
    NetworkInterface::getIPAddresses(addresses);
    EXPECT_EQ(addresses, (std::vector<std::string>{"first", "127.0.0.1", "::1", "10.0.0.5"}));

    d.net.searchDomains = {"b.example", "", "a.example", "b.example", "c.example"};
    std::vector<std::string> suffixes{"c.example"};
    NetworkInterface::getGlobalDNSSuffixes(suffixes);
    EXPECT_EQ(suffixes, (std::vector<std::string>{"c.example", "b.example", "a.example"}));
}

TEST(NetworkInventory, RenewalAsksTheSystemAndPrintsItsStatus)
{
    for (bool result : {true, false}) {
        DescribedNetwork d;
        d.net.renewResult = result;
        NetworkInterface eth0;
        eth0.setName("eth0");
        const int authorization = 0;
        testing::internal::CaptureStdout();
        eth0.renewIPAddress();
        eth0.renewIPAddressAuth(nullptr);  // no authorization: nothing is asked
        eth0.renewIPAddressAuth(&authorization);
        eth0.releaseIPAddress();
        const std::string status = std::string("Mac-OS-X DHCP Renew Status = ") + (result ? "1" : "0") + "\n";
        EXPECT_EQ(testing::internal::GetCapturedStdout(), status + status);
        EXPECT_EQ(d.net.renewed, (std::vector<std::string>{"eth0", "eth0"}));
    }
}

// --- the interface report ---

NetworkInterface* wired(const std::string& mac, const std::string& name, bool up)
{
    auto* i = new NetworkInterface();
    i->setMACAddress(mac);
    i->setName(name);
    i->setMedium("Wired");
    i->setDNSSuffix("corp.example");
    i->setUp(up);
    return i;
}

struct ReportCase {
    std::string what;
    std::function<NetworkInterface*()> make;
    std::string xml;
};

TEST(InterfaceReport, FragmentsFollowTheElementOrderAndCdataRule)
{
    const std::vector<ReportCase> cases = {
        {"wired, one address",
         [] {
             NetworkInterface* i = wired("00:1B:63:AB:CD:EF", "en0", true);
             i->addIPv4Address("10.0.0.5");
             return i;
         },
         "<interface><mac><![CDATA[00:1B:63:AB:CD:EF]]></mac><ip><![CDATA[10.0.0.5]]></ip><desc></desc>"
         "<medium><![CDATA[Wired]]></medium><name><![CDATA[en0]]></name><suffix><![CDATA[corp.example]]></suffix>"
         "<operstatus>UP</operstatus></interface>"},
        {"two IPv4 and one IPv6, down",
         [] {
             NetworkInterface* i = wired("00:1B:63:AB:CD:EF", "eth0", false);
             i->addIPv4Address("10.0.0.5");
             i->addIPv4Address("10.0.0.6");
             i->addIPv6Address("fd00::5");
             i->setDNSSuffix("");
             return i;
         },
         "<interface><mac><![CDATA[00:1B:63:AB:CD:EF]]></mac><ip><![CDATA[10.0.0.5]]></ip><ip><![CDATA[10.0.0.6]]></ip>"
         "<ipv6><![CDATA[fd00::5]]></ipv6><desc></desc><medium><![CDATA[Wired]]></medium><name><![CDATA[eth0]]></name>"
         "<suffix></suffix><operstatus>DOWN</operstatus></interface>"},
        {"wireless, not associated",
         [] {
             NetworkInterface* i = wired("00:1B:63:AB:CD:EF", "wlan0", true);
             i->setMedium("Wireless");
             return i;
         },
         "<interface><mac><![CDATA[00:1B:63:AB:CD:EF]]></mac><desc></desc><medium><![CDATA[Wireless]]></medium>"
         "<name><![CDATA[wlan0]]></name><suffix><![CDATA[corp.example]]></suffix><operstatus>UP</operstatus></interface>"},
        {"wireless, associated",
         [] {
             NetworkInterface* i = wired("00:1B:63:AB:CD:EF", "wlan0", true);
             i->setMedium("Wireless");
             i->setESSID("Campus");
             i->setBSSID("0A:1B:2C:3D:4E:5F");
             return i;
         },
         "<interface><mac><![CDATA[00:1B:63:AB:CD:EF]]></mac><desc></desc><medium><![CDATA[Wireless]]></medium>"
         "<name><![CDATA[wlan0]]></name><suffix><![CDATA[corp.example]]></suffix><essid><![CDATA[Campus]]></essid>"
         "<bssid><![CDATA[0A:1B:2C:3D:4E:5F]]></bssid><operstatus>UP</operstatus></interface>"},
        {"guest adapter",
         [] {
             auto* i = new NetworkInterface();
             i->setMACAddress("08:00:27:AB:CD:EF");
             i->setDescription("VirtualBox Guest: 08:00:27:AB:CD:EF");
             i->setName("VirtualBox Guest0:0");
             i->setMedium("VirtualGuest");
             i->setVMName("VirtualBox Guest0");
             i->setVirtualGuest(true);
             return i;
         },
         "<interface><mac><![CDATA[08:00:27:AB:CD:EF]]></mac><desc><![CDATA[VirtualBox Guest: 08:00:27:AB:CD:EF]]></desc>"
         "<medium><![CDATA[VirtualGuest]]></medium><name><![CDATA[VirtualBox Guest0:0]]></name><suffix></suffix>"
         "<operstatus>DOWN</operstatus><vm><![CDATA[VirtualBox Guest0]]></vm></interface>"},
        {"tunnel",
         [] {
             NetworkInterface* i = wired("", "tun0", true);
             i->addIPv4Address("10.8.0.2");
             return i;
         },
         ""},
    };
    for (const ReportCase& c : cases) {
        std::unique_ptr<NetworkInterface> i(c.make());
        EXPECT_EQ(com::torvane::api::getNetworkInterfaceXML(i.get()), c.xml) << c.what;
    }
    EXPECT_EQ(com::torvane::api::getNetworkInterfaceXML(nullptr), "");
}

TEST(InterfaceReport, OnlyTheExactModeNoneLeavesGuestsOut)
{
    DescribedNetwork d;
    d.link("eth0", ethernetUp);
    d.wired("eth0", "00:1B:63:00:00:10", true);
    d.ipv4("tun0", tunnelUp, "10.8.0.2");
    d.net.tools = {"VBoxSVC", "/opt/vbox", "vmware-vmx", "/opt/vmrun"};
    d.net.outputs["ps -A -o \"uid,comm\" | grep \"VBoxSVC$\" | sort -u | awk '{print $1}'"] = "0\n";
    d.net.outputs["sudo -u \\#0 /opt/vbox list runningvms"] = "\"vm\" {1}\n";
    d.net.outputs["sudo -u \\#0 /opt/vbox showvminfo --machinereadable {1}| /usr/bin/grep ^macaddress"] =
        "macaddress1=\"080027000001\"\n";
    const std::string host =
        "<interface><mac><![CDATA[00:1B:63:00:00:10]]></mac><desc></desc>"
        "<medium><![CDATA[Wired]]></medium><name><![CDATA[eth0]]></name><suffix></suffix>"
        "<operstatus>UP</operstatus></interface>";
    EXPECT_EQ(com::torvane::api::getNetworkInterfacesXML("NONE"), host);
    for (const char* mode : {"none", "", "ALL"}) {
        std::string xml = com::torvane::api::getNetworkInterfacesXML(mode);
        EXPECT_EQ(xml.find(host), 0u) << mode;  // "00:1B" sorts before "080027"
        EXPECT_NE(xml.find("<vm><![CDATA[VirtualBox Guest0]]></vm>"), std::string::npos) << mode;
    }
    d.net.addresses->clear();
    EXPECT_EQ(com::torvane::api::getNetworkInterfacesXML("NONE"), "");
}

}  // namespace
