#include <tvpolicy/agent/SRVRecord.h>
#include <tvpolicy/agent/TXTRecord.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/NameServer.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "peers/LoopbackPeers.h"

namespace {

using com::torvane::SRVRecord;
using com::torvane::TXTRecord;
using tvpolicy::NameServer;

std::vector<std::string> targets(const std::list<const SRVRecord*>& records)
{
    std::vector<std::string> names;
    for (const SRVRecord* record : records) {
        names.push_back(record->getName() + (":" + std::to_string(record->getPort())));
    }
    return names;
}

// dnsmasq serves the records; the lookup is pointed at it, never at the system's name servers.
TEST(DnsDiscoveryPeer, OrdersServersAndReadsSettings)
{
    peers::Dnsmasq dns({
        "--srv-host=_agent._tcp.corp.test,backup.corp.test,8443,20,0",
        "--srv-host=_agent._tcp.corp.test,heavy.corp.test,443,10,60",
        "--srv-host=_agent._tcp.corp.test,light.corp.test,444,10,20",
        "--srv-host=_agent._tcp.corp.test,first.corp.test,445,5,90",
        "--txt-record=_agent._tcp.corp.test,sport=1,port=2,flag",
        "--srv-host=_agent._udp.corp.test,udp.corp.test,53,1,1",
    });
    std::optional<NameServer> server = NameServer::parse(dns.address());

    std::list<const SRVRecord*> records = SRVRecord::lookup("agent", "tcp", "corp.test", server);
    EXPECT_EQ(targets(records), (std::vector<std::string>{"first.corp.test:445", "light.corp.test:444",
                                                          "heavy.corp.test:443", "backup.corp.test:8443"}));
    SRVRecord::freeRecords(records);
    records = SRVRecord::lookup("agent", "udp", "corp.test", server);
    EXPECT_EQ(targets(records), std::vector<std::string>{"udp.corp.test:53"});
    SRVRecord::freeRecords(records);

    std::shared_ptr<TXTRecord> settings = TXTRecord::lookup("agent", "tcp", "corp.test", server);
    EXPECT_EQ(settings->getRawData(), (std::list<std::string>{"sport=1", "port=2"}));
    EXPECT_EQ(settings->getValue("port"), "1");  // found inside "sport=1" first
    EXPECT_EQ(settings->getValue("flag"), "");

    // A name it does not know: no records, at once.
    EXPECT_TRUE(SRVRecord::lookup("other", "tcp", "corp.test", server).empty());
    EXPECT_TRUE(TXTRecord::lookup("other", "tcp", "corp.test", server)->getRawData().empty());
}

TEST(DnsDiscoveryPeer, GivesUpOnAServerThatNeverAnswers)
{
    peers::SilentNameServer silent;
    std::optional<NameServer> server = NameServer::parse(silent.address());
    EXPECT_TRUE(SRVRecord::lookup("agent", "tcp", "corp.test", server).empty());
}

// The system probe's query says why it has no answer: the name server's answer, or the lack of one.
TEST(DnsDiscoveryPeer, AFailedQuerySaysWhy)
{
    peers::Dnsmasq authoritative({"--auth-zone=corp.test", "--auth-server=ns.corp.test",
                                  "--srv-host=_agent._tcp.corp.test,a.corp.test,443,10,20"});
    struct Case {
        std::string title;
        std::string name;
        int type;
        std::string server;
        int code;  // 0: an answer
    };
    const std::vector<Case> cases = {
        {"Answered", "_agent._tcp.corp.test", 33, authoritative.address(), 0},
        {"NoSuchName", "_other._tcp.corp.test", 33, authoritative.address(), tvpolicy::DnsNoSuchName},
        {"NoRecordOfTheType", "_agent._tcp.corp.test", 16, authoritative.address(), tvpolicy::DnsNoData},
        {"NothingListening", "_agent._tcp.corp.test", 33, "127.0.0.1:1", tvpolicy::DnsNoAnswer},
    };
    for (const Case& c : cases) {
        auto answer = tvpolicy::systemHost().dnsQuery(c.name, c.type, NameServer::parse(c.server));
        EXPECT_EQ(answer.ok(), c.code == 0) << c.title << ": " << answer.error();
        EXPECT_EQ(answer.code(), c.code) << c.title;
        EXPECT_EQ(answer.error().empty(), c.code == 0) << c.title;
    }
}

}  // namespace
