#include <tvpolicy/agent/BasicHttpRequest.h>
#include <tvpolicy/host/Machine.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "peers/LoopbackPeers.h"
#include "support/TempDir.h"

namespace {

using com::torvane::BasicHttpRequest;
using com::torvane::HttpBounds;

const std::string agentUserAgent = "Torvane-Agent/5.2.6.69 (" + Machine::getOSString() + ";)";

std::string taken(std::string* text)
{
    std::unique_ptr<std::string> owned(text);
    return owned ? *owned : "(null)";
}

// Each request of the client as the server sees it: the option table, row by row.
TEST(HttpClientRequests, CarryTheOptionsOfTheirOperation)
{
    peers::HttpPeer server;
    testing_support::TempDir dir;
    struct Case {
        const char* what;
        std::function<void()> request;
        std::string method, agentHeader, cookie, body;
    };
    const std::vector<Case> cases = {
        {"get with a cookie", [&] { taken(BasicHttpRequest::get(server.url("/echo"), "a=1", false)); }, "GET", "(none)",
         "a=1", ""},
        {"get without a cookie", [&] { taken(BasicHttpRequest::get(server.url("/echo"), "", true)); }, "GET", "(none)",
         "(none)", ""},
        {"post2", [&] { BasicHttpRequest::post2(server.url("/echo"), "k=v&x=y", "sid=9"); }, "POST", agentUserAgent,
         "sid=9", "k=v&x=y"},
        {"post without a cookie", [&] { taken(BasicHttpRequest::post(server.url("/echo"), "", "", true)); }, "POST",
         agentUserAgent, "(none)", ""},
        {"test", [&] { BasicHttpRequest::test(server.url("/echo")); }, "HEAD", "(none)", "(none)", ""},
        {"getBinary", [&] { BasicHttpRequest::getBinary(server.url("/echo"), (dir.path() / "f").string()); }, "GET",
         agentUserAgent, "(none)", ""},
    };
    for (const Case& c : cases) {
        c.request();
        peers::SeenRequest seen = server.seen();
        EXPECT_EQ(seen.method, c.method) << c.what;
        EXPECT_EQ(seen.header("User-Agent"), "KVA Agent") << c.what;
        EXPECT_EQ(seen.header("X-TVUserAgent"), c.agentHeader) << c.what;
        EXPECT_EQ(seen.header("Cookie"), c.cookie) << c.what;
        EXPECT_EQ(seen.body, c.body) << c.what;
    }
}

TEST(HttpClientPost2, GivesTheSixKeys)
{
    peers::HttpPeer server;
    std::map<std::string, std::string> reply = BasicHttpRequest::post2(server.url("/echo"), "a=b", "");
    EXPECT_EQ(reply.size(), 6u);
    EXPECT_EQ(reply["contents"], "hello");
    EXPECT_EQ(reply["headers"].rfind("HTTP/1.1 200 OK\r\n", 0), 0u) << reply["headers"];
    EXPECT_NE(reply["headers"].find("Set-Cookie: session=abc; Path=/\r\n"), std::string::npos);
    EXPECT_EQ(reply["headers"].substr(reply["headers"].size() - 4), "\r\n\r\n");
    EXPECT_EQ(reply["error"], "");
    EXPECT_EQ(reply["verifyResult"], "0");
    EXPECT_EQ(reply["responseCode"], "200");
    EXPECT_EQ(reply["cookie"], "session=abc; Path=/");
    EXPECT_EQ(taken(BasicHttpRequest::post(server.url("/echo"), "", "", false)), "session=abc; Path=/");
}

TEST(HttpClientPost2, WithoutACookieOrAnAnswer)
{
    peers::HttpPeer server;
    std::map<std::string, std::string> reply = BasicHttpRequest::post2(server.url("/status/404"), "", "");
    EXPECT_EQ(reply.count("cookie"), 0u);
    EXPECT_EQ(reply["responseCode"], "404");
    EXPECT_EQ(taken(BasicHttpRequest::post(server.url("/status/500"), "", "", false)), "");

    reply = BasicHttpRequest::post2("http://127.0.0.1:1/", "", "");
    EXPECT_EQ(reply["responseCode"], "0");
    EXPECT_NE(reply["error"], "");
    EXPECT_EQ(reply["contents"], "");
}

TEST(HttpClientPost2, ReportsAnUntrustedCertificate)
{
    peers::HttpPeer server(true);
    std::map<std::string, std::string> reply = BasicHttpRequest::post2(server.url("/echo"), "", "");
    EXPECT_EQ(reply["responseCode"], "0");
    EXPECT_NE(reply["verifyResult"], "0");
    EXPECT_NE(reply["error"].find("certificate"), std::string::npos) << reply["error"];
    EXPECT_EQ(server.seen().count, 0);  // nothing reached the server's handler
}

TEST(HttpClientGet, StripsThePreambleOrReadsTheCookieFromTheBody)
{
    peers::HttpPeer server;
    struct Case {
        std::string path;
        bool strip;
        std::string result;
    };
    const std::vector<Case> cases = {
        {"/preamble", true, "rest"},
        {"/echo", true, "hello"},                // no blank line: the body unchanged
        {"/cookie-in-body", false, "fromBody"},  // found in the body, to the carriage return
        {"/echo", false, ""},                    // the header's cookie is not read
        {"/moved", true, "moved"},               // the redirect is not followed
    };
    for (const Case& c : cases) {
        EXPECT_EQ(taken(BasicHttpRequest::get(server.url(c.path), "", c.strip)), c.result) << c.path;
    }
    EXPECT_EQ(taken(BasicHttpRequest::get("http://127.0.0.1:1/", "", true)), "");
    int before = server.seen().count;
    EXPECT_EQ(taken(BasicHttpRequest::get(server.url("/echo"), 80, "a", "b", "c", true)), "");
    EXPECT_EQ(server.seen().count, before);  // the inert overload made no request
}

TEST(HttpClientTest, GivesTheStatusOrZero)
{
    peers::HttpPeer server;
    EXPECT_EQ(BasicHttpRequest::test(server.url("/echo")), 200);
    EXPECT_EQ(BasicHttpRequest::test(server.url("/status/404")), 404);
    EXPECT_EQ(BasicHttpRequest::test(server.url("/moved")), 302);
    EXPECT_EQ(BasicHttpRequest::test("http://127.0.0.1:1/"), 0);
}

TEST(HttpClientGetBinary, WritesTheBodyByteForByteAndNeverThroughAnUnopenedFile)
{
    peers::HttpPeer server;
    testing_support::TempDir dir;
    auto file = dir.path() / "download.bin";
    EXPECT_TRUE(BasicHttpRequest::getBinary(server.url("/binary"), file.string()));
    std::string body = testing_support::readFile(file);
    ASSERT_EQ(body.size(), 1024u);
    for (std::size_t i = 0; i < body.size(); ++i) {
        ASSERT_EQ(static_cast<unsigned char>(body[i]), i % 256) << i;
    }
    int before = server.seen().count;
    EXPECT_TRUE(BasicHttpRequest::getBinary(server.url("/binary"), (dir.path() / "no" / "such" / "dir").string()));
    EXPECT_EQ(server.seen().count, before);
}

TEST(HttpClientUrlEncode, UsesLibcurlsEscaping)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"a b", "a%20b"}, {"&", "%26"},     {"a=b&c", "a%3Db%26c"},
        {"", ""},         {"-_.~", "-_.~"}, {std::string("\0\xff", 2), "%00%FF"}};
    for (const auto& [text, encoded] : cases) {
        EXPECT_EQ(BasicHttpRequest::urlEncode(text), encoded);
    }
}

// With the bounds on, an answer that never ends or never comes ends the transfer: the body
// stays within the cap, the call returns.
TEST(HttpClientBounds, EndEndlessAndStalledAnswers)
{
    peers::HttpPeer server;
    HttpBounds saved = BasicHttpRequest::getBounds();
    HttpBounds bounds;
    bounds.enabled = true;
    bounds.maxBodyBytes = 1 << 20;
    bounds.totalTimeoutMs = 1500;
    BasicHttpRequest::setBounds(bounds);

    auto endless = BasicHttpRequest::transfer(com::torvane::HttpOperation::get, server.url("/endless"), "", "", "");
    EXPECT_FALSE(endless.completed);
    EXPECT_LE(endless.contents.size(), bounds.maxBodyBytes);
    EXPECT_EQ(endless.error, "the answer is larger than 1048576 bytes");

    std::map<std::string, std::string> stalled = BasicHttpRequest::post2(server.url("/stalled"), "", "");
    EXPECT_EQ(stalled["responseCode"], "0");
    EXPECT_NE(stalled["error"].find("timed out"), std::string::npos) << stalled["error"];

    testing_support::TempDir dir;
    BasicHttpRequest::getBinary(server.url("/endless"), (dir.path() / "f").string());
    EXPECT_LE(std::filesystem::file_size(dir.path() / "f"), bounds.maxBodyBytes);

    for (const char* url : {"file:///etc/hostname", "ftp://127.0.0.1:1/", "dict://127.0.0.1:1/"}) {
        auto refused = BasicHttpRequest::transfer(com::torvane::HttpOperation::get, url, "", "", "");
        EXPECT_EQ(refused.contents, "") << url;
        EXPECT_NE(refused.error.find("Unsupported protocol"), std::string::npos) << url << ": " << refused.error;
    }
    BasicHttpRequest::setBounds(saved);
}

}  // namespace
