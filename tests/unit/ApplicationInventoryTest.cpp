// The application inventory: the profiler's property list (with its progress lines), Debian's
// status database and rpm's listing, each through a described host, and the app fragment.
#include <tvpolicy/host/ApplicationInventoryItem.h>
#include <tvpolicy/host/DescribedHostProbe.h>

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "host/parse/InstalledApplications.h"
#include "host/parse/NetlinkMessages.h"
#include "support/CaptureStream.h"

namespace {

using com::torvane::api::ApplicationInventoryItem;
using tvpolicy::parse::InstalledApplication;
using Format = tvpolicy::HostProbe::ApplicationListing::Format;
using Pairs = std::vector<std::pair<std::string, std::string>>;

Pairs pairsOf(const std::vector<InstalledApplication>& applications)
{
    Pairs pairs;
    for (const auto& application : applications) {
        pairs.emplace_back(application.name, application.version);
    }
    return pairs;
}

std::string plist(const std::string& body)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">" +
           body + "</plist>\n";
}

std::string item(const std::string& fields)
{
    return "<dict>" + fields + "<key>path</key><string>/Applications/x</string></dict>";
}

const std::string profilerOutput = plist(
    "<array>"
    "<dict><key>_dataType</key><string>SPApplicationsDataType</string><key>_items</key><array>" +
    item("<key>_name</key><string>Mail</string><key>version</key><string>4.5</string>") +
    item("<key>version</key><string>9.9</string>") +                                    // no name: left out
    item("<key>_name</key><string>Tools &amp; &lt;Utilities&gt;</string>") +            // no version
    item("<key>_name</key><integer>7</integer><key>version</key><string>1</string>") +  // a name that is no string
    item("<key>_name</key><string>Caf\xC3\xA9</string><key>version</key><string>2.0 (b3)</string>") +
    "</array></dict>"
    "<dict><key>_dataType</key><string>SPFontsDataType</string><key>_items</key><array>" +
    item("<key>_name</key><string>Helvetica</string>") +
    "</array></dict>"
    "<dict><key>_dataType</key><string>SPApplicationsDataType</string><key>_items</key><string>x</string></dict>"
    "</array>");

TEST(ProfilerApplications, ItemsOfTheApplicationsDataTypeWithProgressLines)
{
    std::ostringstream out;
    std::ostringstream err;
    auto applications = tvpolicy::parse::applicationsFromProfiler(profilerOutput, out, err);
    EXPECT_EQ(pairsOf(applications),
              (Pairs{{"Mail", "4.5"}, {"Tools & <Utilities>", ""}, {"Caf\xC3\xA9", "2.0 (b3)"}}));
    EXPECT_EQ(out.str(), "array count = 3\nitems count = 5\narray count = 3\n");
    EXPECT_EQ(err.str(), "It's an array!\n");
}

std::string nested(int depth)
{
    std::string open;
    std::string close;
    for (int i = 0; i < depth; ++i) {
        open += "<array>";
        close += "</array>";
    }
    return open + close;
}

TEST(ProfilerApplications, OtherRootsAndBrokenDocumentsGiveNothing)
{
    struct Case {
        const char* what;
        std::string xml;
        bool errorPrinted;
    };
    for (const Case& c : std::vector<Case>{
             {"root dictionary", plist("<dict><key>_items</key><array/></dict>"), false},
             {"empty plist", plist(""), true},
             {"no output (the profiler did not start or ran away)", "", true},
             {"not XML", "system_profiler: command not found\n", true},
             {"cut short", profilerOutput.substr(0, profilerOutput.size() / 2), true},
             {"not a plist", "<array><dict/></array>", true},
             {"nested 5000 deep", plist(nested(5000)), true},
         }) {
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_TRUE(tvpolicy::parse::applicationsFromProfiler(c.xml, out, err).empty()) << c.what;
        EXPECT_EQ(out.str(), "") << c.what;
        EXPECT_EQ(!err.str().empty(), c.errorPrinted) << c.what << ": " << err.str();
    }
}

TEST(ProfilerApplications, ExternalEntitiesAreNotRead)
{
    std::string xml =
        "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY leak SYSTEM \"file:///etc/hostname\">]>"
        "<plist><array><dict><key>_dataType</key><string>SPApplicationsDataType</string>"
        "<key>_items</key><array><dict><key>_name</key><string>a&leak;b</string></dict></array>"
        "</dict></array></plist>";
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(pairsOf(tvpolicy::parse::applicationsFromProfiler(xml, out, err)), (Pairs{{"ab", ""}}));
}

const char* const dpkgStatus =
    "Package: dpkg\nStatus: install ok installed\nArchitecture: amd64\nMulti-Arch: foreign\nVersion: 1.21.22\n"
    "Description: Debian package management system\n This package provides the low-level infrastructure\n"
    " Package: fake-in-description\n\n"
    "Package: libc6\nStatus: install ok installed\nArchitecture: amd64\nMulti-Arch: same\nVersion: 2.36-9+deb12u4\n\n"
    "Package: libc6\nStatus: install ok installed\nArchitecture: i386\nMulti-Arch: same\nVersion: 2.36-9+deb12u4\n\n"
    "Package: wine32\nStatus: install ok half-configured\nArchitecture: i386\nVersion: 8.0~repack-4\n\n"
    "Package: tzdata\nStatus: install ok installed\nArchitecture: all\nVersion: 2024a-0+deb12u1\n\n"
    "Package: removed\nStatus: deinstall ok config-files\nArchitecture: amd64\nVersion: 1.0\n\n"
    "Package: purged\nStatus: purge ok not-installed\nArchitecture: amd64\n\n"
    "Package: noversion\r\nStatus: install ok unpacked\r\nArchitecture: amd64\r\n";

TEST(DpkgStatus, InstalledPackagesNamedAsDpkgQueryNamesThem)
{
    EXPECT_EQ(pairsOf(tvpolicy::parse::packagesFromDpkgStatus(dpkgStatus)), (Pairs{{"dpkg", "1.21.22"},
                                                                                   {"libc6:amd64", "2.36-9+deb12u4"},
                                                                                   {"libc6:i386", "2.36-9+deb12u4"},
                                                                                   {"wine32:i386", "8.0~repack-4"},
                                                                                   {"tzdata", "2024a-0+deb12u1"},
                                                                                   {"noversion", ""}}));
    EXPECT_TRUE(tvpolicy::parse::packagesFromDpkgStatus("").empty());
    EXPECT_TRUE(tvpolicy::parse::packagesFromDpkgStatus(std::string("\n\n\0\0Package\n", 12)).empty());
}

TEST(RpmQuery, NameTabVersionLines)
{
    EXPECT_EQ(
        pairsOf(tvpolicy::parse::packagesFromRpmQuery("bash\t5.2.15-3.fc39\n\nkernel\t1:6.5.6-300.fc39\nlonely\n")),
        (Pairs{{"bash", "5.2.15-3.fc39"}, {"kernel", "1:6.5.6-300.fc39"}, {"lonely", ""}}));
}

TEST(ApplicationInventory, GetInstancesReadsTheHostsListing)
{
    struct Case {
        Format format;
        std::string text;
        Pairs expected;
    };
    for (const Case& c : std::vector<Case>{
             {Format::PropertyList,
              profilerOutput,
              {{"Mail", "4.5"}, {"Tools & <Utilities>", ""}, {"Caf\xC3\xA9", "2.0 (b3)"}}},
             {Format::DpkgStatus, "Package: a\nStatus: install ok installed\nVersion: 1\n", {{"a", "1"}}},
             {Format::RpmQuery, "b\t2-1\n", {{"b", "2-1"}}},
             {Format::None, "Package: a\nVersion: 1\n", {}},
         }) {
        tvpolicy::DescribedHostProbe host;
        host.applications = {c.format, c.text};
        tvpolicy::ScopedHost scoped(host);
        testing_support::CaptureStream out(std::cout);
        testing_support::CaptureStream err(std::cerr);
        Pairs got;
        for (const auto& item : ApplicationInventoryItem::getInstances()) {
            got.emplace_back(item->getName(), item->getVersion());
            EXPECT_EQ(item->getVendor(), "");
        }
        EXPECT_EQ(got, c.expected) << c.text;
    }
}

TEST(ApplicationInventory, FragmentKeepsItsOrderAndCdataRule)
{
    struct Case {
        ApplicationInventoryItem item;
        std::string xml;
    };
    for (const Case& c : std::vector<Case>{
             {{"Mail", "", "4.5"},
              "<app><name><![CDATA[Mail]]></name><version><![CDATA[4.5]]></version><vendor></vendor></app>"},
             {{"A & <B>", "", ""}, "<app><name><![CDATA[A & <B>]]></name><version></version><vendor></vendor></app>"},
             {{"", "V", "1"}, "<app><name></name><version><![CDATA[1]]></version><vendor><![CDATA[V]]></vendor></app>"},
             {{"x]]>y", "", ""},
              "<app><name><![CDATA[x]]]]><![CDATA[>y]]></name><version></version><vendor></vendor></app>"},
         }) {
        EXPECT_EQ(c.item.toXML(), c.xml);
    }
}

// Datagrams of the routing socket, built as the kernel lays them out.
std::string netlinkMessage(std::uint32_t length, std::uint16_t type, std::size_t padTo = 0)
{
    std::string bytes(std::max<std::size_t>(16, padTo), '\0');
    std::memcpy(&bytes[0], &length, sizeof length);
    std::memcpy(&bytes[4], &type, sizeof type);
    return bytes;
}

TEST(NetlinkMessages, AddressMessagesAreCountedAndBadLengthsStopTheWalk)
{
    struct Case {
        const char* what;
        std::string datagram;
        int changes;
        bool malformed;
    };
    const std::string added = netlinkMessage(24, 20, 24);
    const std::string removed = netlinkMessage(24, 21, 24);
    for (const Case& c : std::vector<Case>{
             {"added and removed", added + removed, 2, false},
             {"a link message", netlinkMessage(32, 16, 32) + added, 1, false},
             {"an unaligned length is padded", netlinkMessage(17, 20, 20) + removed, 2, false},
             {"zero length", added + netlinkMessage(0, 20), 1, true},
             {"length past the end", netlinkMessage(400, 20, 24), 0, true},
             {"a header cut short", added + std::string(10, '\x01'), 1, false},
             {"empty", "", 0, false},
         }) {
        auto summary = tvpolicy::parse::summarizeNetlink(reinterpret_cast<const unsigned char*>(c.datagram.data()),
                                                         c.datagram.size());
        EXPECT_EQ(summary.addressChanges, c.changes) << c.what;
        EXPECT_EQ(summary.malformed, c.malformed) << c.what;
    }
}

}  // namespace
