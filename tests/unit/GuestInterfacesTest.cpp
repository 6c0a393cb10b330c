#include <tvpolicy/host/NetworkInterface.h>

#include <gtest/gtest.h>

#include <iostream>

#include "host/parse/GuestTools.h"
#include "host/parse/NetText.h"
#include "support/CaptureStream.h"
#include "support/DescribedNetwork.h"
#include "support/TempDir.h"

namespace {

using com::torvane::api::NetworkInterface;
using com::torvane::api::NetworkInterfaceMap;
using testing_support::DescribedNetwork;
using testing_support::logMessages;
namespace parse = tvpolicy::parse;

const std::string vboxUsers = "ps -A -o \"uid,comm\" | grep \"VBoxSVC$\" | sort -u | awk '{print $1}'";
const std::string vmwareUsers = "ps -A -o \"uid,comm\" | grep \"vmware-vmx$\" | sort -u | awk '{print $1}'";

struct Guests {
    ~Guests() { NetworkInterface::freeInstances(map); }
    NetworkInterfaceMap map;
};

void describeTools(DescribedNetwork& d)
{
    d.net.tools = {"VBoxSVC", "/usr/bin/VBoxManage", "vmware-vmx", "/usr/bin/vmrun"};
}

TEST(VBoxGuests, AdaptersAreNumberedPerMachineAndKeyedByTheRawAddress)
{
    DescribedNetwork d;
    describeTools(d);
    d.net.outputs[vboxUsers] = "501\n";
    const std::string as501 = "sudo -u \\#501 /usr/bin/VBoxManage ";
    d.net.outputs[as501 + "list runningvms"] =
        "\"Windows 10\" {0b1d2f3e-aaaa-4bbb-8ccc-000000000001}\n\"ubuntu\" {0b1d2f3e-aaaa-4bbb-8ccc-000000000002}\n";
    d.net.outputs[as501 +
                  "showvminfo --machinereadable {0b1d2f3e-aaaa-4bbb-8ccc-000000000001}| /usr/bin/grep ^macaddress"] =
        "macaddress1=\"080027ABCDEF\"\nmacaddress2=\"\"\nmacaddress3=\"080027000003\"\n";
    d.net.outputs[as501 +
                  "showvminfo --machinereadable {0b1d2f3e-aaaa-4bbb-8ccc-000000000002}| /usr/bin/grep ^macaddress"] =
        "macaddress1=\"080027000010\"\r\n";
    Guests guests;
    guests.map["080027ABCDEF"] = new NetworkInterface();  // an older entry is replaced
    testing_support::CaptureStream log(std::clog);
    NetworkInterface::getVBoxGuestInterfaces(guests.map);

    ASSERT_EQ(guests.map.size(), 3u);
    const NetworkInterface* first = guests.map.at("080027ABCDEF");
    EXPECT_EQ(first->getMACAddress(), "08:00:27:AB:CD:EF");
    EXPECT_EQ(first->getName(), "VirtualBox Guest0:0");
    EXPECT_EQ(first->getVMName(), "VirtualBox Guest0");
    EXPECT_EQ(first->getDescription(), "VirtualBox Guest: 08:00:27:AB:CD:EF");
    EXPECT_EQ(first->getMedium(), "VirtualGuest");
    EXPECT_TRUE(first->isVirtualGuest());
    EXPECT_EQ(guests.map.at("080027000003")->getName(), "VirtualBox Guest0:1");  // the empty one is not counted
    EXPECT_EQ(guests.map.at("080027000010")->getName(), "VirtualBox Guest1:0");
    EXPECT_EQ(logMessages(log.text()),
              (std::vector<std::string>{"MAC = 080027ABCDEF", "Formatted MAC = 08:00:27:AB:CD:EF",
                                        "MAC = ", "MAC = 080027000003", "Formatted MAC = 08:00:27:00:00:03",
                                        "MAC = 080027000010", "Formatted MAC = 08:00:27:00:00:10"}));
}

TEST(VMwareGuests, VmxFilesOfTheListedMachinesGiveNormalisedKeys)
{
    DescribedNetwork d;
    describeTools(d);
    testing_support::TempDir tmp;
    std::string first =
        tmp.write("My VMs/one.vmx",
                  "# comment = \"x\"\nethernet0.present = \"TRUE\"\nethernet0.addressType = \"generated\"\n"
                  "ethernet0.generatedAddress = \"00:0c:29:aa:bb:cc\"\nethernet1.addressType = \"static\"\n"
                  "ethernet1.address = \"00:50:56:0a:0b:0c\"\n")
            .string();
    std::string second =
        tmp.write("two.vmx", "ethernet0.addressType=\"static\"\nethernet0.address=\"00:50:56:00:00:01\"\n").string();
    d.net.outputs[vmwareUsers] = "0\n";
    d.net.outputs["sudo -u \\#0 /usr/bin/vmrun -T ws list"] = "Error: VIX_SERVICEPROVIDER_VMWARE_WORKSTATION\n";
    d.net.outputs["sudo -u \\#0 /usr/bin/vmrun -T player list"] =
        "Total running VMs: 2\n" + first + "\n" + tmp.path().string() + "/missing.vmx\n" + second + "\n";
    Guests guests;
    testing_support::CaptureStream log(std::clog);
    NetworkInterface::getVMwareGuestInterfaces(guests.map);

    ASSERT_EQ(guests.map.size(), 3u);
    const NetworkInterface* generated = guests.map.at("00:0C:29:AA:BB:CC");
    EXPECT_EQ(generated->getMACAddress(), "00:0C:29:AA:BB:CC");
    EXPECT_EQ(generated->getName(), "VMware Guest0:0");
    EXPECT_EQ(generated->getVMName(), "VMware Guest0");
    EXPECT_EQ(generated->getDescription(), "VMware Guest: 00:0C:29:AA:BB:CC");
    EXPECT_EQ(guests.map.at("00:50:56:0A:0B:0C")->getName(), "VMware Guest0:1");
    EXPECT_EQ(guests.map.at("00:50:56:00:00:01")->getName(), "VMware Guest1:0");
    EXPECT_NE(log.text().find("VMX: [ethernet0.addressType]=[generated]"), std::string::npos);
    EXPECT_EQ(d.net.commands.back(), "sudo -u \\#0 /usr/bin/vmrun -T player list");
}

TEST(VMwareGuests, NoServiceUsersRunNothingElse)
{
    DescribedNetwork d;
    describeTools(d);
    Guests guests;
    NetworkInterface::getVirtualGuestInterfaces(guests.map);
    NetworkInterface::getLibVirtGuestInterfaces(guests.map);
    EXPECT_TRUE(guests.map.empty());
    EXPECT_EQ(d.net.commands, (std::vector<std::string>{vboxUsers, vmwareUsers}));
}

TEST(VmxFile, GeneratedThenStaticInPrefixOrder)
{
    testing_support::TempDir tmp;
    std::string path = tmp.write("guest.vmx",
                                 "ethernet1.addressType = \"static\"\n"
                                 "ethernet1.address = \"00:50:56:ab:cd:ef\"\n"
                                 "ethernet0.addressType = \"generated\"\n"
                                 "ethernet0.generatedAddress = \"00:0c:29:12:34:56\"\n"
                                 "ethernet2.addressType = \"vpx\"\n"
                                 "ethernet2.generatedAddress = \"00:0c:29:99:99:99\"\n"
                                 "ethernet3.addressType = \"Static\"\n"
                                 "ethernet3.address = \"00:50:56:00:00:03\"\n"
                                 "#ethernet4.addressType = \"static\"\n"
                                 "ethernet5.addressType = \"static\"\n"
                                 "ethernet5.addressType = \"generated\"\n"
                                 "ethernet5.generatedAddress = \"00:0c:29:00:00:05\"\n")
                           .string();
    std::vector<std::string> macs{"keep"};
    com::torvane::api::getAddressesFromVMXFile(path, macs);
    EXPECT_EQ(macs, (std::vector<std::string>{"keep", "00:0c:29:12:34:56", "00:50:56:AB:CD:EF", "00:0c:29:00:00:05"}));
    com::torvane::api::getAddressesFromVMXFile(tmp.path().string() + "/absent.vmx", macs);
    com::torvane::api::getAddressesFromVMXFile(tmp.path().string(), macs);  // a folder
    EXPECT_EQ(macs.size(), 4u);
}

TEST(GuestToolText, VmxLinesSplitAtTheFirstBlankEqualsElseEquals)
{
    const std::vector<std::pair<std::string, parse::VmxEntry>> cases = {
        {"a.b = \"x\"", {"a.b", "x"}},   {"a.b=\"x\"", {"a.b", "x"}}, {"a=b = \"x\"", {"a=b", "x"}},
        {"a = \"x\" \"y\"", {"a", "x"}}, {"a = x", {"a", ""}},        {"a = \"unterminated", {"a", ""}},
        {"novalue", {"novalue", ""}},    {"a = \"x\"\r", {"a", "x"}},
    };
    for (const auto& [line, entry] : cases) {
        std::vector<parse::VmxEntry> entries = parse::vmxEntries(line);
        ASSERT_EQ(entries.size(), 1u) << line;
        EXPECT_EQ(entries.front(), entry) << line;
    }
    EXPECT_TRUE(parse::vmxEntries("# a = \"x\"\n#\n").empty());
}

TEST(GuestToolText, VBoxOutputs)
{
    EXPECT_EQ(parse::vboxFormattedMAC("080027ABCDEF"), "08:00:27:AB:CD:EF");
    EXPECT_EQ(parse::vboxFormattedMAC("08002"), "08:00:2");
    EXPECT_EQ(parse::vboxFormattedMAC(""), "");
    EXPECT_EQ(parse::vboxQuotedValue("macaddress1=\"080027ABCDEF\""), "080027ABCDEF");
    EXPECT_EQ(parse::vboxQuotedValue("macaddress1=\"080027"), "");
    EXPECT_EQ(parse::vboxQuotedValue("macaddress1"), "");
    EXPECT_EQ(parse::vboxMachineIds("\"a b\" {1}\n\"{c}\" {2}\r\n"), (std::vector<std::string>{"{1}", "{2}"}));
    EXPECT_EQ(parse::vmrunPaths("Total running VMs: 1\r\n/v m/x.vmx\n\n"),
              (std::vector<std::string>{"Total running VMs: 1", "/v m/x.vmx"}));
}

TEST(NetText, SysfsAddresses)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"00:1b:63:ab:cd:ef\n", "00:1B:63:AB:CD:EF"},
        {"00:1B:63:AB:CD:EF", "00:1B:63:AB:CD:EF"},
        {"80:00:02:08:fe:80:00:00:00:00:00:00\n", "80:00:02:08:FE:80"},  // long link addresses: first six
        {"00:00:00:00\n", ""},
        {"\n", ""},
        {"", ""},
        {"00:1b:63:ab:cd:e\n", ""},
        {"00-1b-63-ab-cd-ef\n", ""},
        {"00:1b:63:ab:cd:efg\n", ""},
        {"zz:1b:63:ab:cd:ef\n", ""},
    };
    for (const auto& [raw, mac] : cases) {
        EXPECT_EQ(parse::sysfsMacAddress(raw), mac) << raw;
    }
}

TEST(NetText, ResolverDomainsLastKeywordWins)
{
    struct Case {
        std::string text;
        std::string domain;
        std::vector<std::string> search;
    };
    const std::vector<Case> cases = {
        {"nameserver 10.0.0.1\ndomain corp.example\n", "corp.example", {"corp.example"}},
        {"search a.example b.example\n", "a.example", {"a.example", "b.example"}},
        {"domain corp.example\nsearch a.example\n", "a.example", {"a.example"}},
        {"search a.example\ndomain corp.example\n", "corp.example", {"corp.example"}},
        {"search\ta.example  b.example # note\n", "a.example", {"a.example", "b.example"}},
        {"# domain x\nsearchx y\ndomain\n", "", {}},
        {"", "", {}},
    };
    for (const Case& c : cases) {
        parse::ResolverDomains domains = parse::resolvConfDomains(c.text);
        EXPECT_EQ(domains.domain, c.domain) << c.text;
        EXPECT_EQ(domains.search, c.search) << c.text;
    }
}

}  // namespace
