// The walk over an interface address list that both backends share: entries come out in the
// list's order with their family and address text, the backend's hardware rule decides the
// candidates, and entries the system leaves half empty are kept rather than dropped.
#include <gtest/gtest.h>

#include <cstring>
#include <deque>
#include <iterator>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include "host/probe/InterfaceAddressList.h"

namespace {

using tvpolicy::NetworkProbe;
using tvpolicy::probe::addressEntries;
using Family = NetworkProbe::Family;

// A family number that no real address uses here, standing in for a system's link level.
constexpr int linkFamily = 200;

// Builds a linked list of entries the way getifaddrs hands it out.
class AddressList {
public:
    AddressList& add(const char* name, unsigned flags, int family, const char* address = nullptr)
    {
        auto& storage = addresses_.emplace_back();
        std::memset(&storage, 0, sizeof storage);
        sockaddr* socketAddress = reinterpret_cast<sockaddr*>(&storage);
        socketAddress->sa_family = static_cast<sa_family_t>(family);
        if (family == AF_INET) {
            inet_pton(AF_INET, address, &reinterpret_cast<sockaddr_in*>(&storage)->sin_addr);
        } else if (family == AF_INET6) {
            inet_pton(AF_INET6, address, &reinterpret_cast<sockaddr_in6*>(&storage)->sin6_addr);
        }
        ifaddrs& entry = entries_.emplace_back();
        std::memset(&entry, 0, sizeof entry);
        entry.ifa_name = const_cast<char*>(name);
        entry.ifa_flags = flags;
        entry.ifa_addr = family < 0 ? nullptr : socketAddress;
        if (entries_.size() > 1) {
            entries_[entries_.size() - 2].ifa_next = &entry;
        }
        return *this;
    }
    const ifaddrs* head() const { return entries_.empty() ? nullptr : &entries_.front(); }

private:
    std::deque<sockaddr_storage> addresses_;
    std::deque<ifaddrs> entries_;
};

bool namedEn(const ifaddrs& entry) { return entry.ifa_name != nullptr && std::strncmp(entry.ifa_name, "en", 2) == 0; }

bool linkLevel(const ifaddrs& entry) { return entry.ifa_addr != nullptr && entry.ifa_addr->sa_family == linkFamily; }

TEST(InterfaceAddressList, EntriesKeepOrderFamilyAndAddressText)
{
    AddressList list;
    list.add("lo", IFF_UP | IFF_LOOPBACK, AF_INET, "127.0.0.1")
        .add("en0", IFF_UP | IFF_RUNNING, linkFamily)
        .add("en0", IFF_UP | IFF_RUNNING, AF_INET, "10.0.0.5")
        .add("en0", IFF_UP | IFF_RUNNING, AF_INET6, "fe80::1")
        .add("utun0", 0xD1, AF_INET6, "2001:db8::a:b")
        .add("gif0", 0, AF_UNIX)  // a family the walk does not know
        .add("stf0", 0, -1)       // no address at all
        .add(nullptr, 0, AF_INET, "192.0.2.1");

    struct Expected {
        std::string name;
        unsigned flags;
        Family family;
        std::string address;
    } expected[] = {
        {"lo", IFF_UP | IFF_LOOPBACK, Family::IPv4, "127.0.0.1"},
        {"en0", IFF_UP | IFF_RUNNING, Family::Link, ""},
        {"en0", IFF_UP | IFF_RUNNING, Family::IPv4, "10.0.0.5"},
        {"en0", IFF_UP | IFF_RUNNING, Family::IPv6, "fe80::1"},
        {"utun0", 0xD1, Family::IPv6, "2001:db8::a:b"},
        {"gif0", 0, Family::Other, ""},
        {"stf0", 0, Family::Other, ""},
        {"", 0, Family::IPv4, "192.0.2.1"},
    };
    std::vector<NetworkProbe::AddressEntry> entries = addressEntries(list.head(), linkFamily, &namedEn);
    ASSERT_EQ(entries.size(), std::size(expected));
    for (std::size_t i = 0; i < entries.size(); ++i) {
        EXPECT_EQ(entries[i].name, expected[i].name) << i;
        EXPECT_EQ(entries[i].flags, expected[i].flags) << i;
        EXPECT_EQ(entries[i].family, expected[i].family) << i;
        EXPECT_EQ(entries[i].address, expected[i].address) << i;
    }
}

TEST(InterfaceAddressList, TheBackendRuleAloneMakesCandidates)
{
    AddressList list;
    list.add("en0", 0, linkFamily).add("en0", 0, AF_INET, "10.0.0.5").add("eth0", 0, linkFamily).add(nullptr, 0, -1);

    auto candidates = [&](tvpolicy::probe::HardwareCandidateRule rule) {
        std::vector<bool> marks;
        for (const auto& entry : addressEntries(list.head(), linkFamily, rule)) {
            marks.push_back(entry.hardwareCandidate);
        }
        return marks;
    };
    // By name, every family of the port counts; by link level, only that entry of any name.
    EXPECT_EQ(candidates(&namedEn), (std::vector<bool>{true, true, false, false}));
    EXPECT_EQ(candidates(&linkLevel), (std::vector<bool>{true, false, true, false}));
}

TEST(InterfaceAddressList, AnEmptyListGivesNoEntries)
{
    EXPECT_TRUE(addressEntries(nullptr, linkFamily, &namedEn).empty());
}

}  // namespace
