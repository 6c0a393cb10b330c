// The inventory, the interface report and the query text of interfaces that the test makes in
// a network namespace of its own: veth pairs with chosen addresses (one pair down) and a tun
// point-to-point interface held open by a process. The list read from netlink is also held
// against what getifaddrs and /sys/class/net say of the same interfaces.
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/host/NetworkInterface.h>

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include <linux/if_arp.h>
#include <linux/if_packet.h>
#include <sys/socket.h>

#include <nlohmann/json.hpp>

#include "host/probe/InterfaceAddressList.h"
#include "host/probe/linux/LinuxNetworkProbe.h"
#include "support/ChildProcess.h"
#include "support/NetNamespace.h"
#include "support/RunCli.h"

namespace {

using com::torvane::api::NetworkInterface;
using testing_support::NetNamespace;
using tvpolicy::NetworkProbe;

// Creates tun7 and holds it open: a tun interface is RUNNING only while a process holds it.
const char* const tunHolder =
    "import fcntl, os, struct, time\n"
    "fd = os.open('/dev/net/tun', os.O_RDWR)\n"
    "fcntl.ioctl(fd, 0x400454ca, struct.pack('16sH', b'tun7', 0x0001 | 0x1000))\n"
    "time.sleep(600)\n";

class NamespaceInterfaces : public testing::Test {
protected:
    void SetUp() override
    {
        if (!ns.valid()) {
            GTEST_SKIP() << ns.skipReason();
        }
        ASSERT_TRUE(ns.exec("sysctl -qw net.ipv6.conf.default.addr_gen_mode=1 && ip link set lo up"));
        ASSERT_TRUE(
            ns.exec("ip link add va address 02:00:00:00:0a:01 type veth peer name vb address 02:00:00:00:0b:01"));
        ASSERT_TRUE(
            ns.exec("ip link add vc address 02:00:00:00:0c:01 type veth peer name vd address 02:00:00:00:0d:01"));
        ASSERT_TRUE(
            ns.exec("ip addr add 10.77.0.1/24 dev va && ip addr add 10.77.0.9/24 dev va && "
                    "ip addr add fd77::1/64 dev va nodad && ip link set va up && ip link set vb up && "
                    "ip link set vd up"));
        holder = std::make_unique<testing_support::ChildProcess>(
            std::vector<std::string>{"ip", "netns", "exec", ns.name(), "/usr/bin/python3", "-c", tunHolder});
        ASSERT_TRUE(ns.waitFor("ip link show tun7")) << "the tun holder did not start";
        ASSERT_TRUE(ns.exec("ip addr add 10.88.0.1 peer 10.88.0.2 dev tun7 && ip link set tun7 up"));
        ASSERT_TRUE(ns.waitFor("ip -o link show va | grep -q 'state UP' && ip -o link show tun7 | grep -q LOWER_UP"));
        ns.setResolvConf("nameserver 127.0.0.1\nsearch ns.example other.example ns.example\n");
    }

    testing_support::CliResult cli(const std::vector<std::string>& args)
    {
        std::vector<std::string> argv = {"ip",        "netns", "exec",
                                         ns.name(),   "env",   "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus",
                                         TVPOLICY_CLI};
        argv.insert(argv.end(), args.begin(), args.end());
        return testing_support::runProgram(argv);
    }

    NetNamespace ns;
    std::unique_ptr<testing_support::ChildProcess> holder;
};

std::string fragment(const std::string& mac, const std::string& name, const std::string& addresses, bool up)
{
    return "<interface><mac><![CDATA[" + mac + "]]></mac>" + addresses +
           "<desc></desc><medium><![CDATA[Wired]]></medium>" + "<name><![CDATA[" + name +
           "]]></name><suffix><![CDATA[ns.example]]></suffix><operstatus>" + (up ? "UP" : "DOWN") +
           "</operstatus></interface>";
}

TEST_F(NamespaceInterfaces, ReportHoldsTheConfiguredPortsAndLeavesTheTunnelOut)
{
    std::string expected =
        fragment("02:00:00:00:0A:01", "va",
                 "<ip><![CDATA[10.77.0.1]]></ip><ip><![CDATA[10.77.0.9]]></ip><ipv6><![CDATA[fd77::1]]></ipv6>", true) +
        fragment("02:00:00:00:0B:01", "vb", "", true) + fragment("02:00:00:00:0C:01", "vc", "", false) +
        fragment("02:00:00:00:0D:01", "vd", "", false);
    for (const std::vector<std::string>& args : {std::vector<std::string>{"interfaces", "--xml", "--no-guests"},
                                                 std::vector<std::string>{"interfaces", "--xml"}}) {
        testing_support::CliResult xml = cli(args);
        EXPECT_EQ(xml.exitCode, 0) << xml.err;
        EXPECT_EQ(xml.out, expected + "\n");
    }
}

TEST_F(NamespaceInterfaces, JsonStatesTheSameFactsWithTheTunnel)
{
    testing_support::CliResult result = cli({"interfaces", "--json", "--no-guests"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    nlohmann::json list = nlohmann::json::parse(result.out);
    std::vector<std::string> keys;
    for (const auto& item : list) {
        keys.push_back(item["key"]);
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"02:00:00:00:0A:01", "02:00:00:00:0B:01", "02:00:00:00:0C:01",
                                              "02:00:00:00:0D:01", "tun7"}));
    EXPECT_EQ(list[0]["ipv4"], (std::vector<std::string>{"10.77.0.1", "10.77.0.9"}));
    EXPECT_EQ(list[0]["ipv6"], std::vector<std::string>{"fd77::1"});
    EXPECT_EQ(list[0]["dnsSuffix"], "ns.example");
    EXPECT_EQ(list[4]["mac"], "");
    EXPECT_EQ(list[4]["medium"], "");
    EXPECT_EQ(list[4]["ipv4"], std::vector<std::string>{"10.88.0.1"});
    EXPECT_EQ(list[4]["up"], true);
    EXPECT_EQ(list[2]["up"], false);

    testing_support::CliResult table = cli({"interfaces", "--no-guests"});
    EXPECT_NE(table.out.find("tun7"), std::string::npos);
    EXPECT_NE(table.out.find("10.77.0.1,10.77.0.9,fd77::1"), std::string::npos) << table.out;
}

TEST_F(NamespaceInterfaces, QueryTextAddressesAndSearchDomainsInProcess)
{
    std::string query = ns.inChild([] { return Machine::getMACAddress(""); });
    EXPECT_EQ(query,
              "hw_desc=va&mac=02:00:00:00:0A:01&hw_ip=10.77.0.1&hw_media=Wired"
              "&hw_desc=vb&mac=02:00:00:00:0B:01&hw_ip=&hw_media=Wired"
              "&hw_desc=vc&mac=02:00:00:00:0C:01&hw_ip=&hw_media=Wired"
              "&hw_desc=vd&mac=02:00:00:00:0D:01&hw_ip=&hw_media=Wired"
              "&hw_desc=tun7&mac=&hw_ip=10.88.0.1");
    std::string addresses = ns.inChild([] {
        std::vector<std::string> list;
        NetworkInterface::getIPAddresses(list);
        std::string text;
        for (const std::string& address : list) {
            text += address + " ";
        }
        return text;
    });
    EXPECT_EQ(addresses, "127.0.0.1 10.77.0.1 10.77.0.9 10.88.0.1 ::1 fd77::1 ");
    std::string suffixes = ns.inChild([] {
        std::vector<std::string> list;
        NetworkInterface::getGlobalDNSSuffixes(list);
        return list.size() == 2 ? list[0] + " " + list[1] : std::string("wrong count");
    });
    EXPECT_EQ(suffixes, "ns.example other.example");
}

TEST_F(NamespaceInterfaces, TunnelsNobodyHoldsAreNotRunningAndLeaveTheInventory)
{
    // tun8 persists without a holder: up, point-to-point, but never running.
    ASSERT_TRUE(
        ns.exec("ip tuntap add dev tun8 mode tun && ip addr add 10.99.0.1 peer 10.99.0.2 dev tun8 && "
                "ip link set tun8 up"));
    holder.reset();
    ASSERT_TRUE(ns.waitFor("! ip link show tun7"));
    std::string keys = ns.inChild([] {
        com::torvane::api::NetworkInterfaceMap map;
        NetworkInterface::getInstances(map);
        std::string text;
        for (const auto& entry : map) {
            text += entry.first + " ";
        }
        NetworkInterface::freeInstances(map);
        return text;
    });
    EXPECT_EQ(keys, "02:00:00:00:0A:01 02:00:00:00:0B:01 02:00:00:00:0C:01 02:00:00:00:0D:01 ");
}

// The link-level entry of an Ethernet interface, as getifaddrs shows it.
bool ethernetLink(const ifaddrs& entry)
{
    return entry.ifa_addr != nullptr && entry.ifa_addr->sa_family == AF_PACKET &&
           reinterpret_cast<const sockaddr_ll*>(entry.ifa_addr)->sll_hatype == ARPHRD_ETHER;
}

std::string line(const NetworkProbe::AddressEntry& e)
{
    std::ostringstream out;
    out << e.name << " flags " << std::hex << e.flags << std::dec << " family " << static_cast<int>(e.family) << " "
        << e.address << (e.hardwareCandidate ? " candidate" : "");
    return out.str();
}

std::string details(const NetworkProbe::Hardware& hardware, const NetworkProbe::LinkState& link)
{
    return "[" + hardware.macAddress + " " + hardware.medium + " " + (link.active ? "active" : "inactive") + " " +
           std::to_string(link.error) + "]";
}

TEST_F(NamespaceInterfaces, TheNetlinkListIsWhatGetifaddrsAndSysfsSay)
{
    // Besides the ports up, down and without a carrier (vd's peer is down) and the tunnel: an
    // alias, whose label names no link, and a bridge without ports.
    ASSERT_TRUE(
        ns.exec("ip addr add 10.77.0.20/24 dev va label va:1 && ip link add br0 address 02:00:00:00:0e:01 type bridge "
                "&& ip link set br0 up"));
    ASSERT_TRUE(ns.waitFor("ip -o link show br0 | grep -q NO-CARRIER"));
    std::string report = ns.inChild([] {
        tvpolicy::LinuxNetworkProbe probe;
        std::optional<std::vector<NetworkProbe::AddressEntry>> netlink = probe.interfaceAddresses();
        ifaddrs* raw = nullptr;
        if (!netlink || ::getifaddrs(&raw) != 0) {
            return std::string("unreadable");
        }
        std::vector<NetworkProbe::AddressEntry> reference =
            tvpolicy::probe::addressEntries(raw, AF_PACKET, &ethernetLink);
        ::freeifaddrs(raw);
        std::string differences;
        for (std::size_t i = 0; i < std::max(netlink->size(), reference.size()); ++i) {
            std::string ours = i < netlink->size() ? line((*netlink)[i]) : "-";
            std::string theirs = i < reference.size() ? line(reference[i]) : "-";
            if (ours != theirs) {
                differences += "entry " + std::to_string(i) + ": netlink " + ours + ", getifaddrs " + theirs + "\n";
            }
            if (i >= netlink->size()) {
                continue;
            }
            const NetworkProbe::AddressEntry& entry = (*netlink)[i];
            std::optional<NetworkProbe::Hardware> sysfs = probe.interfaceHardware(entry.name);
            std::string read = details(*entry.hardware, *entry.link);
            std::string looked = sysfs ? details(*sysfs, probe.linkState(entry.name)) : "[lookup failed]";
            if (read != looked) {
                differences += entry.name + ": netlink " + read + ", sysfs " + looked + "\n";
            }
        }
        return differences.empty() ? "same " + std::to_string(netlink->size()) + " entries" : differences;
    });
    // Seven links; the addresses of lo, va (three and an alias) and tun7.
    EXPECT_EQ(report, "same 14 entries");
}

}  // namespace
