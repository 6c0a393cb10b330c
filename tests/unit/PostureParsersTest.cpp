// The OS-neutral readers under the posture checks: rpm's version order, socket-diagnostics
// datagrams, the packet filter's JSON ruleset and the mount table.
#include <gtest/gtest.h>

#include <cstring>

#include "host/parse/MountInfo.h"
#include "host/parse/NftRuleset.h"
#include "host/parse/PackageVersion.h"
#include "host/parse/SockDiag.h"

namespace {

using namespace tvpolicy::parse;

TEST(RpmVersionOrder, ComparesAsRpmvercmp)
{
    struct Row {
        const char* a;
        const char* b;
        int order;
    } rows[] = {
        {"1.0", "1.0", 0},         {"1.0", "2.0", -1},  {"2.0.1", "2.0", 1},    {"1.0a", "1.0", 1},
        {"1.0", "1.0a", -1},       {"10", "9", 1},      {"1.0~rc1", "1.0", -1}, {"1.0^git1", "1.0", 1},
        {"1.0^git1", "1.0.1", -1}, {"1:1.0", "2.0", 1}, {"0:2.0", "2.0", 0},    {"1.0-2", "1.0-10", -1},
        {"1.0-1", "1.0", 0},       {"a", "1", -1},      {"1.01", "1.1", 0},     {"1_0", "1.0", 0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(compareRpmVersions(row.a, row.b), row.order) << row.a << " vs " << row.b;
        EXPECT_EQ(compareRpmVersions(row.b, row.a), -row.order) << row.b << " vs " << row.a;
    }
}

TEST(DpkgVersionSyntax, RefusesWhatDpkgRefuses)
{
    for (const char* bad : {"", "a1.0", "x:1.0", "1.0 1", ":1.0", "1:", "-1"}) {
        EXPECT_FALSE(parseDpkgVersion(bad)) << '"' << bad << '"';
    }
    auto version = parseDpkgVersion("2:1.2-3-4");
    ASSERT_TRUE(version);
    EXPECT_EQ(version->epoch, 2u);
    EXPECT_EQ(version->upstream, "1.2-3");
    EXPECT_EQ(version->revision, "4");
}

// A socket message of the dump: header, then family, state, and the local port big-endian.
std::vector<unsigned char> socketMessage(int family, int state, unsigned port, std::uint16_t type = 20)
{
    std::vector<unsigned char> message(16 + 72, 0);
    std::uint32_t length = static_cast<std::uint32_t>(message.size());
    std::memcpy(message.data(), &length, 4);
    std::memcpy(message.data() + 4, &type, 2);
    message[16] = static_cast<unsigned char>(family);
    message[17] = static_cast<unsigned char>(state);
    message[20] = static_cast<unsigned char>(port >> 8);
    message[21] = static_cast<unsigned char>(port & 0xff);
    return message;
}

std::vector<unsigned char> controlMessage(std::uint16_t type, std::int32_t code)
{
    std::vector<unsigned char> message(20, 0);
    std::uint32_t length = 20;
    std::memcpy(message.data(), &length, 4);
    std::memcpy(message.data() + 4, &type, 2);
    std::memcpy(message.data() + 16, &code, 4);
    return message;
}

TEST(SockDiagDatagram, ReadsSocketsUntilDoneAndStopsAtDamage)
{
    auto datagram = socketMessage(2, 10, 22);
    auto v6 = socketMessage(10, 10, 8022);
    auto done = controlMessage(3, 0);
    datagram.insert(datagram.end(), v6.begin(), v6.end());
    datagram.insert(datagram.end(), done.begin(), done.end());
    DiagBatch batch = parseSockDiag(datagram.data(), datagram.size());
    ASSERT_EQ(batch.sockets.size(), 2u);
    EXPECT_EQ(batch.sockets[0].localPort, 22u);
    EXPECT_EQ(batch.sockets[1].family, 10);
    EXPECT_EQ(batch.sockets[1].localPort, 8022u);
    EXPECT_TRUE(batch.done);
    EXPECT_FALSE(batch.malformed);

    auto refused = controlMessage(2, -1);
    batch = parseSockDiag(refused.data(), refused.size());
    EXPECT_EQ(batch.error, 1);

    auto cut = socketMessage(2, 10, 22);
    cut.resize(40);
    std::uint32_t length = 40;
    std::memcpy(cut.data(), &length, 4);
    batch = parseSockDiag(cut.data(), cut.size());
    EXPECT_TRUE(batch.malformed);
    EXPECT_TRUE(batch.sockets.empty());
}

TEST(SockDiagDatagram, RequestAsksForOneFamilyAndProtocolInTheGivenStates)
{
    auto request = sockDiagRequest(10, 17, 1u << 7, 5);
    ASSERT_EQ(request.size(), 72u);
    std::uint32_t states = 0;
    std::memcpy(&states, request.data() + 20, 4);
    EXPECT_EQ(request[16], 10);
    EXPECT_EQ(request[17], 17);
    EXPECT_EQ(states, 1u << 7);
}

TEST(NftRulesetJson, BaseChainsWithTheirPolicyAndDroppingRules)
{
    const char* ruleset = R"({"nftables":[{"metainfo":{"json_schema_version":1}},
      {"table":{"family":"inet","name":"filter","handle":1}},
      {"chain":{"family":"inet","table":"filter","name":"input","handle":1,"type":"filter","hook":"input","prio":0,"policy":"accept"}},
      {"chain":{"family":"inet","table":"filter","name":"helper","handle":2}},
      {"rule":{"family":"inet","table":"filter","chain":"helper","handle":3,"expr":[{"drop":null}]}},
      {"rule":{"family":"inet","table":"filter","chain":"input","handle":4,"expr":[{"match":{"op":"==","left":{"meta":{"key":"l4proto"}},"right":"tcp"}},{"reject":{"type":"tcp reset"}}]}},
      {"chain":{"family":"ip","table":"nat","name":"out","handle":5,"type":"nat","hook":"output","prio":0,"policy":"drop"}}]})";
    std::vector<tvpolicy::PostureProbe::FilterChain> chains;
    ASSERT_TRUE(baseChainsFromNftJson(ruleset, chains));
    ASSERT_EQ(chains.size(), 2u);
    EXPECT_EQ(chains[0].hook, "input");
    EXPECT_EQ(chains[0].policy, "accept");
    EXPECT_TRUE(chains[0].dropsOrRejects);
    EXPECT_EQ(chains[1].hook, "output");
    EXPECT_FALSE(chains[1].dropsOrRejects);

    for (const char* bad : {"", "[]", "{\"nftables\":3}", "{\"nftables\":[", "null"}) {
        EXPECT_FALSE(baseChainsFromNftJson(bad, chains)) << bad;
    }
}

TEST(MountInfoText, UnescapesAndTheLastMountOfAPointWins)
{
    const char* text =
        "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
        "30 22 0:25 / /media/my\\040disk rw shared:5 master:1 - vfat /dev/sdb\\0401 rw\n"
        "damaged line\n"
        "31 22 254:0 / / rw - ext4 /dev/mapper/root rw\n";
    auto mounts = parseMountInfo(text);
    ASSERT_EQ(mounts.size(), 3u);
    EXPECT_EQ(mounts[1].mountPoint, "/media/my disk");
    EXPECT_EQ(mounts[1].fsType, "vfat");
    EXPECT_EQ(mounts[1].source, "/dev/sdb 1");
    auto root = mountAt(mounts, "/");
    ASSERT_TRUE(root);
    EXPECT_EQ(root->device, "254:0");
    EXPECT_FALSE(mountAt(mounts, "/home"));
}

}  // namespace
