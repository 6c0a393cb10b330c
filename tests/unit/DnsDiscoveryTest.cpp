#include <tvpolicy/agent/SRVRecord.h>
#include <tvpolicy/agent/TXTRecord.h>
#include <tvpolicy/host/NameServer.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include "support/CaptureStream.h"
#include "support/RecordingHost.h"

namespace {

using com::torvane::SRVRecord;
using com::torvane::TXTRecord;
using Bytes = std::vector<unsigned char>;

const std::string queryName = "_agent._tcp.example.test";

void put16(Bytes& out, unsigned value)
{
    out.push_back(static_cast<unsigned char>(value >> 8));
    out.push_back(static_cast<unsigned char>(value & 0xff));
}

void putName(Bytes& out, const std::string& name)
{
    std::size_t start = 0;
    while (start < name.size()) {
        std::size_t dot = name.find('.', start);
        std::string label = name.substr(start, dot == std::string::npos ? std::string::npos : dot - start);
        out.push_back(static_cast<unsigned char>(label.size()));
        out.insert(out.end(), label.begin(), label.end());
        start = dot == std::string::npos ? name.size() : dot + 1;
    }
    out.push_back(0);
}

// A resource record as a name server sends it: owner (a pointer to the question's name), type,
// class, TTL and the record data.
struct Answer {
    unsigned type;
    Bytes data;
    unsigned klass = 1;
};

// A reply to the question queryName with the given answer records.
Bytes reply(const std::vector<Answer>& answers, unsigned type = 33)
{
    Bytes out;
    put16(out, 0x1234);
    put16(out, 0x8180);
    put16(out, 1);
    put16(out, static_cast<unsigned>(answers.size()));
    put16(out, 0);
    put16(out, 0);
    putName(out, queryName);
    put16(out, type);
    put16(out, 1);
    for (const Answer& answer : answers) {
        put16(out, 0xc00c);
        put16(out, answer.type);
        put16(out, answer.klass);
        put16(out, 0);
        put16(out, 60);
        put16(out, static_cast<unsigned>(answer.data.size()));
        out.insert(out.end(), answer.data.begin(), answer.data.end());
    }
    return out;
}

Answer srv(unsigned priority, unsigned weight, unsigned port, const std::string& target)
{
    Answer answer{33, {}};
    put16(answer.data, priority);
    put16(answer.data, weight);
    put16(answer.data, port);
    putName(answer.data, target);
    return answer;
}

Answer txt(const std::vector<std::string>& items)
{
    Answer answer{16, {}};
    for (const std::string& item : items) {
        answer.data.push_back(static_cast<unsigned char>(item.size()));
        answer.data.insert(answer.data.end(), item.begin(), item.end());
    }
    return answer;
}

class DnsDiscovery : public ::testing::Test {
protected:
    std::vector<std::string> lookUp(bool sorted)
    {
        std::list<const SRVRecord*> records = sorted ? SRVRecord::lookup("agent", "tcp", "example.test")
                                                     : SRVRecord::lookupMacOSX("agent", "tcp", "example.test");
        std::vector<std::string> shown;
        for (const SRVRecord* record : records) {
            shown.push_back(std::to_string(record->getPriority()) + " " + std::to_string(record->getWeight()) + " " +
                            std::to_string(record->getPort()) + " " + record->getName());
        }
        SRVRecord::freeRecords(records);
        return shown;
    }

    testing_support::RecordingHost host;
    tvpolicy::ScopedHost scope{host};
};

TEST_F(DnsDiscovery, SrvRecordsComeByPriorityThenLowerWeightAndEqualOnesKeepTheirOrder)
{
    struct Case {
        const char* what;
        std::vector<Answer> answers;
        std::vector<std::string> sorted;
        std::vector<std::string> arrived;
    };
    const std::vector<Case> cases = {
        {"lower priority first",
         {srv(10, 0, 443, "b.test"), srv(5, 0, 8443, "a.test")},
         {"5 0 8443 a.test", "10 0 443 b.test"},
         {"10 0 443 b.test", "5 0 8443 a.test"}},
        {"lower weight first at equal priority",
         {srv(10, 60, 1, "heavy.test"), srv(10, 20, 2, "light.test")},
         {"10 20 2 light.test", "10 60 1 heavy.test"},
         {"10 60 1 heavy.test", "10 20 2 light.test"}},
        {"priority before weight",
         {srv(20, 0, 1, "x.test"), srv(10, 90, 2, "y.test")},
         {"10 90 2 y.test", "20 0 1 x.test"},
         {"20 0 1 x.test", "10 90 2 y.test"}},
        {"equal in both: arrival order",
         {srv(1, 5, 1, "c.test"), srv(1, 5, 2, "a.test"), srv(0, 0, 3, "first.test"), srv(1, 5, 3, "b.test")},
         {"0 0 3 first.test", "1 5 1 c.test", "1 5 2 a.test", "1 5 3 b.test"},
         {"1 5 1 c.test", "1 5 2 a.test", "0 0 3 first.test", "1 5 3 b.test"}},
        {"the sixteen bits of every field",
         {srv(65535, 65535, 65535, "max.test"), srv(0, 0, 0, "zero.test")},
         {"0 0 0 zero.test", "65535 65535 65535 max.test"},
         {"65535 65535 65535 max.test", "0 0 0 zero.test"}},
        {"records of other types, classes or too short are passed over",
         {Answer{5, {0, 1, 2}}, Answer{33, {0, 1, 0, 2}},
          [] {
              Answer a = srv(1, 1, 1, "chaos.test");
              a.klass = 3;
              return a;
          }(),
          srv(3, 3, 3, "kept.test")},
         {"3 3 3 kept.test"},
         {"3 3 3 kept.test"}},
        {"no answer", {}, {}, {}},
    };
    for (const Case& c : cases) {
        host.dnsAnswers[{queryName, 33}] = reply(c.answers);
        EXPECT_EQ(lookUp(true), c.sorted) << c.what;
        EXPECT_EQ(lookUp(false), c.arrived) << c.what;
    }
}

TEST_F(DnsDiscovery, TargetsAreDecompressedAndLongOnesCut)
{
    Answer pointer{33,
                   {0, 1, 0, 2, 0x01, 0xbb, 3, 's', 'r', 'v', 0xc0, 0x18}};  // "srv" + the question's "example.test"
    std::string oddLabel(63, '\x01');                                        // each byte written as \001
    std::string shown;
    for (int i = 0; i < 63; ++i) {
        shown += "\\001";
    }
    Answer loop{33, {0, 1, 0, 2, 0, 3, 0xc0, 0x3c}};  // a pointer to itself: not a name
    host.dnsAnswers[{queryName, 33}] = reply({pointer, srv(2, 0, 4, oddLabel + ".x.test")});
    std::list<const SRVRecord*> records = SRVRecord::lookup("agent", "tcp", "example.test");
    ASSERT_EQ(records.size(), 2u);
    EXPECT_STREQ(records.front()->getName(), "srv.example.test");
    EXPECT_EQ(records.front()->getPort(), 443u);
    EXPECT_EQ(std::string(records.back()->getName()), shown + ".x");  // 254 of 259 characters
    SRVRecord::freeRecords(records);

    host.dnsAnswers[{queryName, 33}] = reply({loop});
    records = SRVRecord::lookup("agent", "tcp", "example.test");
    ASSERT_EQ(records.size(), 1u);
    EXPECT_STREQ(records.front()->getName(), "");
    EXPECT_EQ(records.front()->getTxtRecord(), "");
    SRVRecord::freeRecords(records);
}

TEST_F(DnsDiscovery, MalformedMessagesGiveNoRecords)
{
    Bytes good = reply({srv(1, 1, 1, "a.test")});
    const std::vector<Bytes> messages = {
        {},
        {0x12},
        Bytes(good.begin(), good.end() - 3),  // the record data cut short
        [&] {
            Bytes b = good;
            b[7] = 9;
            return b;
        }(),  // claims nine answers
        Bytes(512, 0xff),
    };
    for (const Bytes& message : messages) {
        host.dnsAnswers[{queryName, 33}] = message;
        host.dnsAnswers[{queryName, 16}] = message;
        std::vector<std::string> shown = lookUp(true);
        EXPECT_TRUE(shown.empty()) << message.size();
        EXPECT_TRUE(TXTRecord::lookup("agent", "tcp", "example.test")->getRawData().empty());
    }
}

TEST_F(DnsDiscovery, QueriesAskTheServiceNameWithTheKindsTypeAndTheGivenServer)
{
    testing_support::CaptureStream log(std::clog);
    SRVRecord::freeRecords(SRVRecord::lookup("agent", "tcp", "example.test"));
    TXTRecord::lookup("agent", "udp", "corp.test", tvpolicy::NameServer{"127.0.0.1", 5353});
    SRVRecord::freeRecords(SRVRecord::lookup(nullptr, "tcp", std::string(300, 'd').c_str()));
    ASSERT_EQ(host.dnsQueries.size(), 3u);
    EXPECT_EQ(host.dnsQueries[0], "_agent._tcp.example.test 33");
    EXPECT_EQ(host.dnsQueries[1], "_agent._udp.corp.test 16 @127.0.0.1:5353");
    EXPECT_EQ(host.dnsQueries[2], "_._tcp." + std::string(247, 'd') + " 33");  // cut at 254 characters
    std::vector<std::string> lines = testing_support::logMessages(log.text());
    ASSERT_EQ(lines.size(), 3u);
    EXPECT_EQ(lines[0], " Looking up _agent._tcp.example.test");
    EXPECT_EQ(lines[1], " Looking up _agent._udp.corp.test");
}

TEST_F(DnsDiscovery, TxtItemsWithAValueBecomeKeyValueTextsInOrder)
{
    host.dnsAnswers[{queryName, 16}] =
        reply({txt({"x=1", "novalue", "empty=", "=anonymous"}),
               txt({std::string("bin=a\0b", 7), std::string(254, 'k') + "=", "port=443"}),
               Answer{16, {5, 'a', '=', 'b'}}},  // an item running past its record
              16);
    std::shared_ptr<TXTRecord> record = TXTRecord::lookup("agent", "tcp", "example.test");
    std::list<std::string> expected = {
        "x=1", "empty=", "=anonymous", std::string("bin=a\0b", 7), std::string(254, 'k') + "=", "port=443"};
    EXPECT_EQ(record->getRawData(), expected);
}

TEST(TxtValue, IsWhatFollowsTheFirstKeyAndEqualsSignFoundAnywhere)
{
    struct Case {
        std::list<std::string> texts;
        std::string key;
        std::string value;
    };
    const std::vector<Case> cases = {
        {{"x=1", "port=443"}, "port", "443"},
        {{"sport=1", "port=2"}, "port", "1"},
        {{"uid=7"}, "id", "7"},
        {{"x=1"}, "port", ""},
        {{"Port=1", "port=2"}, "port", "2"},
        {{"url=http://h/?a=b"}, "url", "http://h/?a=b"},
        {{"a=b=c"}, "b", "c"},
        {{"key="}, "key", ""},
        {{}, "x", ""},
    };
    for (const Case& c : cases) {
        TXTRecord record(c.texts);
        EXPECT_EQ(record.getValue(c.key), c.value) << c.key;
    }
}

TEST(NameServerText, IsAnIpv4AddressWithAnOptionalPort)
{
    struct Case {
        std::string text;
        bool valid;
        std::string address;
        std::uint16_t port;
    };
    const std::vector<Case> cases = {
        {"127.0.0.1", true, "127.0.0.1", 53},
        {"10.1.2.3:5353", true, "10.1.2.3", 5353},
        {"127.0.0.1:65535", true, "127.0.0.1", 65535},
        {"127.0.0.1:0", false, "", 0},
        {"127.0.0.1:65536", false, "", 0},
        {"127.0.0.1:", false, "", 0},
        {"127.0.0.1:5x", false, "", 0},
        {"127.0.0.1:-1", false, "", 0},
        {"ns.example.test", false, "", 0},
        {"::1", false, "", 0},
        {"", false, "", 0},
        {"127.0.0.1:99999999999999999999", false, "", 0},
    };
    for (const Case& c : cases) {
        std::optional<tvpolicy::NameServer> server = tvpolicy::NameServer::parse(c.text);
        ASSERT_EQ(server.has_value(), c.valid) << c.text;
        if (server) {
            EXPECT_EQ(server->address, c.address);
            EXPECT_EQ(server->port, c.port);
        }
    }
}

}  // namespace
