// The routing netlink dump reader and the interface list built from its links and addresses.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "host/parse/RouteDump.h"
#include "host/parse/RouteInterfaces.h"

namespace {

namespace route = tvpolicy::parse::route;
using tvpolicy::NetworkProbe;
using tvpolicy::parse::RouteDump;
using Bytes = std::vector<unsigned char>;

constexpr std::uint32_t sequence = 7;
constexpr std::uint32_t upRunning = 0x11043;   // UP BROADCAST RUNNING MULTICAST LOWER_UP
constexpr std::uint32_t upNoCarrier = 0x1003;  // UP BROADCAST MULTICAST
constexpr std::uint16_t typeLoopback = 772;

template <typename T>
void append(Bytes& bytes, T value)
{
    const auto* raw = reinterpret_cast<const unsigned char*>(&value);
    bytes.insert(bytes.end(), raw, raw + sizeof value);
}

void pad(Bytes& bytes)
{
    while (bytes.size() % 4 != 0) {
        bytes.push_back(0);
    }
}

Bytes attribute(std::uint16_t type, const Bytes& payload)
{
    Bytes bytes;
    append(bytes, static_cast<std::uint16_t>(4 + payload.size()));
    append(bytes, type);
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    pad(bytes);
    return bytes;
}

Bytes text(const std::string& value)
{
    Bytes bytes(value.begin(), value.end());
    bytes.push_back(0);
    return bytes;
}

Bytes link(std::int32_t index, std::uint16_t type, std::uint32_t flags, const std::vector<Bytes>& attributes)
{
    Bytes bytes = {0, 0};
    append(bytes, type);
    append(bytes, index);
    append(bytes, flags);
    append(bytes, std::uint32_t{0});
    for (const Bytes& a : attributes) {
        bytes.insert(bytes.end(), a.begin(), a.end());
    }
    return bytes;
}

Bytes address(std::uint8_t family, std::int32_t index, const std::vector<Bytes>& attributes)
{
    Bytes bytes = {family, 24, 0, 0};
    append(bytes, index);
    for (const Bytes& a : attributes) {
        bytes.insert(bytes.end(), a.begin(), a.end());
    }
    return bytes;
}

Bytes status(std::int32_t value)
{
    Bytes bytes;
    append(bytes, value);
    return bytes;
}

Bytes message(std::uint16_t type, const Bytes& payload, std::uint16_t flags = 2, std::uint32_t number = sequence)
{
    Bytes bytes;
    append(bytes, static_cast<std::uint32_t>(16 + payload.size()));
    append(bytes, type);
    append(bytes, flags);
    append(bytes, number);
    append(bytes, std::uint32_t{4242});
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    pad(bytes);
    return bytes;
}

Bytes datagram(const std::vector<Bytes>& messages)
{
    Bytes bytes;
    for (const Bytes& m : messages) {
        bytes.insert(bytes.end(), m.begin(), m.end());
    }
    return bytes;
}

const Bytes mac = {0x02, 0x00, 0x00, 0x00, 0x0a, 0x01};
const Bytes ipv4 = {10, 77, 0, 1};
const Bytes peer = {10, 88, 0, 2};
const Bytes ipv6 = {0xfd, 0x77, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};

// A link message of an Ethernet port "va", index 2, up with its carrier.
Bytes va(std::uint8_t operState = route::operUp)
{
    return message(route::newLink, link(2, route::typeEther, upRunning,
                                        {attribute(route::linkName, text("va")), attribute(route::linkAddress, mac),
                                         attribute(route::linkOperState, {operState})}));
}

RouteDump read(const std::vector<Bytes>& datagrams)
{
    RouteDump dump;
    for (const Bytes& d : datagrams) {
        tvpolicy::parse::readRouteDump(d.data(), d.size(), sequence, dump);
    }
    return dump;
}

// One line per link and address, and the dump's state.
std::string describe(const RouteDump& dump)
{
    std::string out;
    for (const auto& l : dump.links) {
        out += "link " + std::to_string(l.index) + " " + l.name + " type " + std::to_string(l.type) + " hw " +
               (l.hasHardwareAddress ? std::to_string(l.hardwareAddress.size()) : std::string("-")) + " oper " +
               std::to_string(l.operState) + "; ";
    }
    for (const auto& a : dump.addresses) {
        out += "addr " + std::to_string(a.family) + "@" + std::to_string(a.index) + " " +
               (a.hasAddress ? std::to_string(static_cast<unsigned char>(a.address.back())) : std::string("-")) +
               (a.hasLabel ? " label " + a.label : std::string()) + "; ";
    }
    out += std::string(dump.done ? "done" : "open") + (dump.interrupted ? " interrupted" : "") +
           (dump.malformed ? " malformed" : "") + (dump.error != 0 ? " error " + std::to_string(dump.error) : "");
    return out;
}

struct ReadCase {
    std::string what;
    std::vector<Bytes> datagrams;
    std::string expected;
};

class ReadRouteDump : public testing::TestWithParam<ReadCase> {};

TEST_P(ReadRouteDump, ReadsWhatTheRepliesHold) { EXPECT_EQ(describe(read(GetParam().datagrams)), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Replies, ReadRouteDump,
    testing::Values(
        ReadCase{"a link over two datagrams, then the end",
                 {datagram({va()}), datagram({message(route::done, status(0))})},
                 "link 2 va type 1 hw 6 oper 6; done"},
        ReadCase{"the local address wins over the peer, in either order",
                 {datagram({message(route::newAddress,
                                    address(route::familyIPv4, 9,
                                            {attribute(route::addressAddress, peer),
                                             attribute(route::addressLocal, ipv4),
                                             attribute(route::addressLabel, text("tun7"))})),
                            message(route::newAddress,
                                    address(route::familyIPv4, 9,
                                            {attribute(route::addressLocal, ipv4),
                                             attribute(route::addressAddress, peer)})),
                            message(route::done, status(0))})},
                 "addr 2@9 1 label tun7; addr 2@9 1; done"},
        ReadCase{"addresses of the wrong size are passed over",
                 {datagram({message(route::newAddress,
                                    address(route::familyIPv4, 2, {attribute(route::addressAddress, ipv6)})),
                            message(route::newAddress,
                                    address(route::familyIPv6, 2, {attribute(route::addressAddress, ipv6)}))})},
                 "addr 2@2 -; addr 10@2 1; open"},
        ReadCase{"replies to another request are passed over",
                 {datagram({message(route::newLink, link(5, 1, 0, {}), 2, sequence + 1), va(),
                            message(route::done, status(0), 2, sequence + 1)})},
                 "link 2 va type 1 hw 6 oper 6; open"},
        ReadCase{"an error ends the dump",
                 {datagram({va(), message(route::error, status(-EBUSY)), va()})},
                 "link 2 va type 1 hw 6 oper 6; open error 16"},
        ReadCase{"an end with an error",
                 {datagram({message(route::done, status(-EINTR))})},
                 "done error 4"},
        ReadCase{"an interrupted dump says so",
                 {datagram({va(), message(route::done, status(0), 2 | route::interrupted)})},
                 "link 2 va type 1 hw 6 oper 6; done interrupted"},
        ReadCase{"a link message too short for its header",
                 {datagram({message(route::newLink, Bytes(12, 0)), va()})},
                 "open malformed"},
        ReadCase{"a message longer than its datagram",
                 {[] {
                     Bytes d = va();
                     d.resize(d.size() - 8);
                     return d;
                 }()},
                 "open malformed"},
        ReadCase{"an attribute past its message is passed over, with what follows",
                 {datagram({message(route::newLink,
                                    [] {
                                        Bytes l = link(3, typeLoopback, 0x49, {attribute(route::linkName, text("lo"))});
                                        Bytes overlong = attribute(route::linkAddress, mac);
                                        overlong[0] = 200;
                                        l.insert(l.end(), overlong.begin(), overlong.end());
                                        return l;
                                    }())})},
                 "link 3 lo type 772 hw - oper 0; open"},
        ReadCase{"a name longer than an interface name may be, or holding a NUL",
                 {datagram({message(route::newLink, link(4, 1, 0, {attribute(route::linkName, text("seventeen-chars!!"))})),
                            message(route::newLink, link(5, 1, 0, {attribute(route::linkName, Bytes{'a', 'b', 0, 'c', 'd', 0})}))})},
                 "link 4  type 1 hw - oper 0; link 5 ab type 1 hw - oper 0; open"},
        ReadCase{"nothing after the end is read",
                 {datagram({message(route::done, status(0))}), datagram({va()})},
                 "done"}),
    [](const testing::TestParamInfo<ReadCase>& testCase) { return "case" + std::to_string(testCase.index); });

TEST(RouteDumpRequest, AsksForADumpOfEveryFamilyAndLinksWithoutStatistics)
{
    Bytes links = tvpolicy::parse::routeDumpRequest(route::getLink, 9);
    Bytes addresses = tvpolicy::parse::routeDumpRequest(route::getAddress, 10);
    Bytes expectedLinks = message(
        route::getLink,
        [] {
            Bytes b(16, 0);
            Bytes mask;
            append(mask, route::skipStats);
            Bytes a = attribute(route::linkExtMask, mask);
            b.insert(b.end(), a.begin(), a.end());
            return b;
        }(),
        route::request | route::dump, 9);
    Bytes expectedAddresses = message(route::getAddress, Bytes(8, 0), route::request | route::dump, 10);
    // The port is the kernel's to fill in.
    std::memset(expectedLinks.data() + 12, 0, 4);
    std::memset(expectedAddresses.data() + 12, 0, 4);
    EXPECT_EQ(links, expectedLinks);
    EXPECT_EQ(addresses, expectedAddresses);
}

// The list an inventory reads, one line per entry: name, flags, family, address, candidate,
// and the hardware and link state it carries.
std::string describe(const std::vector<NetworkProbe::AddressEntry>& entries)
{
    static const char* const families[] = {"v4", "v6", "link", "other"};
    std::string out;
    for (const auto& e : entries) {
        char flags[16];
        std::snprintf(flags, sizeof flags, "%x", e.flags);
        out += e.name + " " + flags + " " + families[static_cast<int>(e.family)] + " " + e.address +
               (e.hardwareCandidate ? " candidate" : "") + " [" + (e.hardware ? e.hardware->macAddress : "?") + " " +
               (e.hardware ? e.hardware->medium : "?") + " " +
               (e.link ? (e.link->active ? "active" : "inactive") + std::string(e.link->error ? " error" : "") : "?") +
               "]\n";
    }
    return out;
}

struct ListCase {
    std::string what;
    std::vector<Bytes> links;
    std::vector<Bytes> addresses;
    std::string expected;
};

class RouteInterfaceList : public testing::TestWithParam<ListCase> {};

TEST_P(RouteInterfaceList, FollowsTheLinksThenTheAddresses)
{
    RouteDump dump = read({datagram(GetParam().links), datagram(GetParam().addresses)});
    std::vector<std::string> asked;
    auto entries = tvpolicy::parse::routeInterfaceEntries(dump, [&asked](const std::string& name) {
        asked.push_back(name);
        return name.rfind("wl", 0) == 0;
    });
    EXPECT_EQ(describe(entries), GetParam().expected);
    EXPECT_EQ(asked.size(), dump.links.size()) << "one question per link";
}

INSTANTIATE_TEST_SUITE_P(
    Dumps, RouteInterfaceList,
    testing::Values(
        ListCase{"a port with addresses of both families",
                 {va()},
                 {message(route::newAddress,
                          address(route::familyIPv4, 2,
                                  {attribute(route::addressAddress, ipv4), attribute(route::addressLocal, ipv4),
                                   attribute(route::addressLabel, text("va"))})),
                  message(route::newAddress, address(route::familyIPv6, 2, {attribute(route::addressAddress, ipv6)}))},
                 "va 11043 link  candidate [02:00:00:00:0A:01 Wired active]\n"
                 "va 11043 v4 10.77.0.1 [02:00:00:00:0A:01 Wired active]\n"
                 "va 11043 v6 fd77::1 [02:00:00:00:0A:01 Wired active]\n"},
        ListCase{"an alias is named by its label, which no link has",
                 {va()},
                 {message(route::newAddress, address(route::familyIPv4, 2,
                                                     {attribute(route::addressLocal, ipv4),
                                                      attribute(route::addressLabel, text("va:1"))}))},
                 "va 11043 link  candidate [02:00:00:00:0A:01 Wired active]\n"
                 "va:1 11043 v4 10.77.0.1 [  inactive error]\n"},
        ListCase{"the link state: the carrier and an operational state of up or unknown",
                 {va(route::operUnknown),
                  message(route::newLink,
                          link(3, 1, upRunning,
                               {attribute(route::linkName, text("vb")), attribute(route::linkOperState, {2})})),
                  message(route::newLink, link(4, 1, upNoCarrier,
                                               {attribute(route::linkName, text("vc")),
                                                attribute(route::linkOperState, {route::operUp})}))},
                 {},
                 "va 11043 link  candidate [02:00:00:00:0A:01 Wired active]\n"
                 "vb 11043 other  [ Wired inactive]\n"
                 "vc 1003 other  [ Wired inactive]\n"},
        ListCase{"the medium: Wi-Fi as the test says, wired for Ethernet only; a short address is none",
                 {message(route::newLink,
                          link(5, 1, upRunning,
                               {attribute(route::linkName, text("wlan0")), attribute(route::linkAddress, mac)})),
                  message(route::newLink,
                          link(6, typeLoopback, 0x10049,
                               {attribute(route::linkName, text("lo")), attribute(route::linkAddress, Bytes(6, 0))})),
                  message(route::newLink, link(7, 776, 0x10091,
                                               {attribute(route::linkName, text("sit1")),
                                                attribute(route::linkAddress, Bytes(4, 0))}))},
                 {},
                 "wlan0 11043 link  candidate [02:00:00:00:0A:01 Wireless active]\n"
                 "lo 10049 link  [00:00:00:00:00:00  active]\n"
                 "sit1 10091 link  [  active]\n"},
        ListCase{"an address of a link the dump did not hold, or of another family",
                 {va()},
                 {message(route::newAddress, address(route::familyIPv4, 99, {attribute(route::addressLocal, ipv4)})),
                  message(route::newAddress, address(35, 2, {attribute(route::addressAddress, {1, 2})})),
                  message(route::newAddress, address(route::familyIPv6, 2, {}))},
                 "va 11043 link  candidate [02:00:00:00:0A:01 Wired active]\n"
                 "va 11043 other  [02:00:00:00:0A:01 Wired active]\n"
                 "va 11043 other  [02:00:00:00:0A:01 Wired active]\n"}),
    [](const testing::TestParamInfo<ListCase>& testCase) { return "case" + std::to_string(testCase.index); });

TEST(RouteInterfaceList, CountsTheAddressesOfLinksItDoesNotHold)
{
    RouteDump dump = read({datagram(
        {va(), message(route::newAddress, address(route::familyIPv4, 99, {attribute(route::addressLocal, ipv4)})),
         message(route::newAddress, address(route::familyIPv4, 2, {attribute(route::addressLocal, ipv4)}))})});
    EXPECT_EQ(tvpolicy::parse::strayRouteAddresses(dump), 1u);
    EXPECT_EQ(tvpolicy::parse::routeInterfaceEntries(dump, nullptr).size(), 2u);
}

}  // namespace
