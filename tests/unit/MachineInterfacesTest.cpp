#include <tvpolicy/host/Machine.h>

#include <gtest/gtest.h>

#include "support/DescribedNetwork.h"

namespace {

using testing_support::DescribedNetwork;

TEST(MachineInterfaces, QueryTextAndParallelListsFollowKeyOrder)
{
    DescribedNetwork d;
    d.ipv4("utun0", 0x10D1, "10.8.0.2");
    d.link("en0", 0x1043);
    d.ipv4("en0", 0x1043, "10.0.0.5");
    d.ipv4("en0", 0x1043, "10.0.0.6");
    d.wired("en0", "00:1B:63:AB:CD:EF", true);
    d.link("en1", 0x1002);
    d.wired("en1", "00:1B:63:FF:00:01", false);

    EXPECT_EQ(Machine::getMACAddress("ignored"),
              "hw_desc=en0&mac=00:1B:63:AB:CD:EF&hw_ip=10.0.0.5&hw_media=Wired"
              "&hw_desc=en1&mac=00:1B:63:FF:00:01&hw_ip=&hw_media=Wired"
              "&hw_desc=utun0&mac=&hw_ip=10.8.0.2");

    std::vector<std::string> macs{"old"}, ips, descriptions, media;
    Machine::getInterfaces(macs, ips, descriptions, media);
    EXPECT_EQ(macs, (std::vector<std::string>{"old", "00:1B:63:AB:CD:EF", "00:1B:63:FF:00:01", ""}));
    EXPECT_EQ(ips, (std::vector<std::string>{"10.0.0.5", "", "10.8.0.2"}));
    EXPECT_EQ(descriptions, (std::vector<std::string>{"", "", ""}));
    EXPECT_EQ(media, (std::vector<std::string>{"Wired", "Wired", ""}));

    d.net.addresses->clear();
    EXPECT_EQ(Machine::getMACAddress(""), "");
}

}  // namespace
