// The OS-neutral rules behind the macOS probe: the medium from the controller's media types,
// the MAC text of the registry's address data, and the answer message rebuilt from the DNS
// service's records (read back by the library's own parser).
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "host/parse/DnsAnswer.h"
#include "host/parse/DnsMessage.h"
#include "host/parse/MacHardware.h"

namespace {

using namespace tvpolicy::parse;
using Bytes = std::vector<unsigned char>;

TEST(MacHardware, MediumIsTheFirstTypeWithAKnownBit)
{
    struct Case {
        std::vector<std::uint32_t> types;
        const char* medium;
    } cases[] = {
        {{0x80}, "Wireless"},
        {{0x20}, "Wired"},
        {{0x22, 0x80}, "Wired"},  // the walk stops at the first hit
        {{0x80, 0x20}, "Wireless"},
        {{0x01, 0x02, 0x40}, ""},  // neither bit: no medium
        {{}, ""},
        {{0xA0}, "Wireless"},     // both bits on one type
        {{0x00100020}, "Wired"},  // subtype bits above do not matter
    };
    for (const Case& c : cases) {
        EXPECT_EQ(mediumFromTypes(c.types), c.medium) << c.types.size();
    }
}

TEST(MacHardware, MacTextTakesTheFirstSixBytes)
{
    EXPECT_EQ(macFromBytes({0x00, 0x1b, 0x63, 0xab, 0xcd, 0xef}), "00:1B:63:AB:CD:EF");
    EXPECT_EQ(macFromBytes({0, 1, 2, 3, 4, 5, 6, 7}), "00:01:02:03:04:05");
    EXPECT_EQ(macFromBytes({1, 2, 3, 4, 5}), "");
    EXPECT_EQ(macFromBytes({}), "");
}

Bytes srvData(unsigned priority, unsigned weight, unsigned port, const std::string& target)
{
    Bytes data{static_cast<unsigned char>(priority >> 8), static_cast<unsigned char>(priority),
               static_cast<unsigned char>(weight >> 8),   static_cast<unsigned char>(weight),
               static_cast<unsigned char>(port >> 8),     static_cast<unsigned char>(port)};
    Bytes name = dnsWireName(target);
    data.insert(data.end(), name.begin(), name.end());
    return data;
}

TEST(DnsMessage, RebuiltAnswersReadBackInOrder)
{
    std::vector<DnsRecord> records = {
        {33, 1, 60, srvData(10, 60, 8443, "b.example.test")},
        {33, 1, 60, srvData(5, 20, 443, "a.example.test.")},
        {16, 1, 60, Bytes{3, 'x', '=', '1'}},  // another type: passed over by the SRV reader
    };
    Bytes message = dnsAnswerMessage("_agent._tcp.example.test", 33, records);
    std::vector<SrvAnswer> answers = srvAnswers(message);
    ASSERT_EQ(answers.size(), 2u);
    EXPECT_EQ(answers[0].priority, 10);
    EXPECT_EQ(answers[0].weight, 60);
    EXPECT_EQ(answers[0].port, 8443);
    EXPECT_EQ(answers[0].target, "b.example.test");
    EXPECT_EQ(answers[1].target, "a.example.test");

    Bytes txt{5, 'p', 'o', 'r', 't', '=', 4, 'f', 'l', 'a', 'g', 3, 'a', '=', '\0'};
    std::vector<std::string> items = txtAnswers(dnsAnswerMessage("x.test", 16, {{16, 1, 0, txt}}));
    ASSERT_EQ(items.size(), 2u);
    EXPECT_EQ(items[0], "port=");
    EXPECT_EQ(items[1], std::string("a=\0", 3));
}

TEST(DnsMessage, NamesThatCannotBeWritten)
{
    const std::string label63(63, 'a');
    struct Case {
        std::string name;
        bool writable;
    } cases[] = {
        {"example.test", true},
        {"example.test.", true},
        {label63 + ".test", true},
        {label63 + "a.test", false},  // a label of 64 bytes
        {"a..b", false},
        {".a", false},
        {label63 + "." + label63 + "." + label63 + "." + label63, false},              // 257 bytes on the wire
        {label63 + "." + label63 + "." + label63 + "." + std::string(61, 'b'), true},  // 255
    };
    for (const Case& c : cases) {
        EXPECT_EQ(!dnsWireName(c.name).empty(), c.writable) << c.name.size();
        EXPECT_EQ(!dnsQueryMessage(7, c.name, 33).empty(), c.writable) << c.name.size();
        EXPECT_EQ(!dnsAnswerMessage(c.name, 33, {}).empty(), c.writable) << c.name.size();
    }
    EXPECT_EQ(dnsWireName(""), Bytes{0});  // the root
}

TEST(DnsMessage, QueryHeaderAndQuestion)
{
    Bytes query = dnsQueryMessage(0xBEEF, "a.b", 16);
    Bytes expected{0xBE, 0xEF, 0x01, 0x00, 0, 1, 0, 0, 0, 0, 0, 0, 1, 'a', 1, 'b', 0, 0, 16, 0, 1};
    EXPECT_EQ(query, expected);
    EXPECT_TRUE(dnsAnswerMessage("a.b", 33, {{33, 1, 0, Bytes(70000, 0)}}).empty());  // data too long
}

}  // namespace
