#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <iterator>
#include <string>
#include <vector>

#include "peers/LoopbackPeers.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using testing_support::runCli;

TEST(HttpCommand, ExitsByTheAnswer)
{
    peers::HttpPeer server;
    struct Case {
        std::vector<std::string> args;
        int exitCode;
        std::string out;
        std::string errPart;
    };
    const std::vector<Case> cases = {
        {{"get", server.url("/echo")}, 0, "hello", ""},
        {{"get", server.url("/status/404")}, 1, "status", ""},
        {{"get", server.url("/moved")}, 1, "moved", ""},
        {{"head", server.url("/echo")}, 0, "200\n", ""},
        {{"head", server.url("/status/503")}, 1, "503\n", ""},
        {{"post", server.url("/echo"), "--data", "a=b"}, 0, "hello", ""},
        {{"get", "http://127.0.0.1:1/"}, 2, "", "tvpolicy http: "},
        {{"get", "file:///etc/hostname"}, 2, "", "Unsupported protocol"},
        {{"get", server.url("/endless"), "--max-size", "100000"}, 2, "", "larger than 100000 bytes"},
        {{"get", server.url("/stalled"), "--timeout", "0.5"}, 2, "", "Timeout was reached"},
        {{"download", server.url("/binary")}, 2, "", "download needs -o FILE"},
        {{"fetch", server.url("/echo")}, 2, "", ""},
    };
    for (const Case& c : cases) {
        std::vector<std::string> args = {"http"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        auto result = runCli(args);
        EXPECT_EQ(result.exitCode, c.exitCode) << c.args[1] << ": " << result.err;
        EXPECT_EQ(result.out.substr(0, 100), c.out) << c.args[1];
        EXPECT_NE(result.err.find(c.errPart), std::string::npos) << c.args[1] << ": " << result.err;
    }
}

TEST(HttpCommand, PostJsonShowsTheSixKeysWithTheServersCookie)
{
    peers::HttpPeer server;
    auto result = runCli({"http", "post", server.url("/echo"), "--data", "k=v", "--cookie", "sid=1", "--json"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    auto shown = nlohmann::json::parse(result.out);
    EXPECT_EQ(shown.size(), 6u);
    EXPECT_EQ(shown["cookie"], "session=abc; Path=/");
    EXPECT_EQ(shown["contents"], "hello");
    EXPECT_EQ(shown["responseCode"], 200);
    EXPECT_EQ(shown["verifyResult"], 0);
    EXPECT_EQ(shown["error"], "");
    EXPECT_EQ(server.seen().body, "k=v");
    EXPECT_EQ(server.seen().header("Cookie"), "sid=1");
}

TEST(HttpCommand, ReportsAnUntrustedCertificate)
{
    peers::HttpPeer server(true);
    auto get = runCli({"http", "get", server.url("/echo")});
    EXPECT_EQ(get.exitCode, 2);
    EXPECT_NE(get.err.find("certificate"), std::string::npos) << get.err;
    auto post = runCli({"http", "post", server.url("/echo"), "--json"});
    EXPECT_EQ(post.exitCode, 2);
    auto shown = nlohmann::json::parse(post.out);
    EXPECT_NE(shown["verifyResult"], "0");
    EXPECT_NE(shown["error"].get<std::string>().find("certificate"), std::string::npos) << post.out;
}

// Redirects are told and followed only when asked; a private CA is trusted with --cacert; a
// post's body comes from a file with @FILE; the status is a number in every JSON form.
TEST(HttpCommand, OptionsOfANewUser)
{
    peers::HttpPeer plain;
    peers::HttpPeer tls(true);
    testing_support::TempDir dir;
    auto body = dir.write("body.txt", "from=file&x=1");
    struct Case {
        std::vector<std::string> args;
        int exitCode;
        std::string out;
        std::string errPart;
        std::string bodySeen;  // by the plain server, when not empty
    };
    const std::vector<Case> cases = {
        {{"get", plain.url("/moved")},
         1,
         "moved",
         plain.url("/moved") + " answered 302, a redirect to " + plain.url("/echo") + ": not followed (-L follows it)",
         ""},
        {{"get", plain.url("/moved"), "-L"}, 0, "hello", "a redirect to " + plain.url("/echo") + ": following it", ""},
        {{"head", plain.url("/moved"), "-L"}, 2, "", "-L follows the redirects of get only", ""},
        {{"get", tls.url("/echo"), "--cacert", peers::HttpPeer::certificateFile()}, 0, "hello", "", ""},
        {{"get", tls.url("/echo"), "--cacert", "/no/such.pem"}, 2, "", "--cacert", ""},
        {{"post", plain.url("/echo"), "--data", "@" + body.string()}, 0, "hello", "", "from=file&x=1"},
        {{"post", plain.url("/echo"), "--data", "@/no/such/body"}, 2, "", "cannot read '/no/such/body'", ""},
    };
    for (const Case& c : cases) {
        std::vector<std::string> args = {"http"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        auto result = runCli(args);
        EXPECT_EQ(result.exitCode, c.exitCode) << c.args[1] << ": " << result.err;
        EXPECT_EQ(result.out, c.out) << c.args[1];
        EXPECT_NE(result.err.find(c.errPart), std::string::npos) << c.args[1] << ": " << result.err;
        if (!c.bodySeen.empty()) {
            EXPECT_EQ(plain.seen().body, c.bodySeen);
        }
    }
    for (const char* operation : {"get", "head", "post"}) {
        auto shown = nlohmann::json::parse(runCli({"http", operation, plain.url("/status/404"), "--json"}).out);
        EXPECT_EQ(shown["responseCode"], 404) << operation;
        EXPECT_TRUE(shown["verifyResult"].is_number()) << operation;
    }
}

// --insecure takes a self-signed certificate that is refused without it, and warns each time;
// -H adds request headers (replacing the client's own of that name) and refuses a malformed one
// before anything is sent.
TEST(HttpCommand, InsecureAndHeaders)
{
    peers::HttpPeer plain;
    peers::HttpPeer tls(true);
    testing_support::TempDir dir;
    const std::string warning =
        "tvpolicy http: warning: --insecure: the server's certificate and host name are not "
        "checked";
    const std::string malformed = "is not NAME:VALUE";
    struct Case {
        std::vector<std::string> args;
        int exitCode;
        std::string out;
        std::string errPart;                                    // "" : standard error must not warn about --insecure
        std::vector<std::pair<std::string, std::string>> seen;  // headers the plain server must have seen
    };
    const std::vector<Case> cases = {
        {{"get", tls.url("/echo")}, 2, "", "certificate", {}},
        {{"get", tls.url("/echo"), "--insecure"}, 0, "hello", warning, {}},
        {{"post", tls.url("/echo"), "--data", "a=b", "--insecure"}, 0, "hello", warning, {}},
        {{"head", tls.url("/echo"), "--insecure"}, 0, "200\n", warning, {}},
        {{"download", tls.url("/binary"), "--insecure", "-o", (dir.path() / "b.bin").string()}, 0, "", warning, {}},
        {{"get", plain.url("/echo"), "-H", "X-Test: one", "-H", "X-Other:two"},
         0,
         "hello",
         "",
         {{"X-Test", "one"}, {"X-Other", "two"}}},
        {{"get", plain.url("/echo"), "-H", "User-Agent: probe/1"}, 0, "hello", "", {{"User-Agent", "probe/1"}}},
        {{"post", plain.url("/echo"), "--data", "a=b", "-H", "X-Test: posted"}, 0, "hello", "", {{"X-Test", "posted"}}},
        {{"get", plain.url("/echo"), "-H", "NoColon"}, 2, "", malformed, {}},
        {{"get", plain.url("/echo"), "-H", ": no name"}, 2, "", malformed, {}},
        {{"get", plain.url("/echo"), "-H", "Bad Name: x"}, 2, "", malformed, {}},
        {{"get", plain.url("/echo"), "-H", "X-A: a\r\nX-Injected: b"}, 2, "", malformed, {}},
        {{"get", plain.url("/echo"), "-H", "X-A: a\nb"}, 2, "", malformed, {}},
    };
    for (const Case& c : cases) {
        std::vector<std::string> args = {"http"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const int before = plain.seen().count;
        auto result = runCli(args);
        const std::string what = c.args[0] + " " + c.args.back();
        EXPECT_EQ(result.exitCode, c.exitCode) << what << ": " << result.err;
        EXPECT_EQ(result.out, c.out) << what;
        if (c.errPart.empty()) {
            EXPECT_EQ(result.err.find("--insecure"), std::string::npos) << what << ": " << result.err;
        } else {
            EXPECT_NE(result.err.find(c.errPart), std::string::npos) << what << ": " << result.err;
        }
        if (c.errPart == malformed) {
            EXPECT_EQ(plain.seen().count, before) << what << ": a request was sent";
        }
        for (const auto& [name, value] : c.seen) {
            EXPECT_EQ(plain.seen().header(name), value) << what << ": header " << name;
        }
    }
}

TEST(HttpCommand, DownloadsIntoAFile)
{
    peers::HttpPeer server;
    testing_support::TempDir dir;
    auto file = dir.path() / "out.bin";
    auto result = runCli({"http", "download", server.url("/binary"), "-o", file.string()});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(testing_support::readFile(file).size(), 1024u);
    result = runCli({"http", "download", server.url("/binary"), "-o", (dir.path() / "no" / "f").string()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("cannot create a file beside"), std::string::npos) << result.err;
}

// An existing file changes only with a complete 2xx answer; otherwise it keeps every byte, no
// temporary file stays beside it, and the cause is printed.
TEST(HttpCommand, DownloadNeverSpoilsAnExistingFile)
{
    peers::HttpPeer server;
    struct Case {
        std::vector<std::string> args;
        int exitCode;
        std::string errPart;
    };
    const std::vector<Case> cases = {
        {{"download", server.url("/status/404")}, 1, "was left unchanged: the server answered 404, not 2xx"},
        {{"download", server.url("/endless"), "--max-size", "100000"}, 2, "larger than 100000 bytes"},
        {{"download", server.url("/stalled"), "--timeout", "0.5"}, 2, "no complete answer came"},
        {{"get", server.url("/status/404")}, 1, "was left unchanged"},
        {{"post", server.url("/status/404")}, 1, "was left unchanged"},
    };
    for (const Case& c : cases) {
        testing_support::TempDir dir;
        auto file = dir.write("keep.txt", "precious");
        std::vector<std::string> args = {"http"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        args.insert(args.end(), {"-o", file.string()});
        auto result = runCli(args);
        EXPECT_EQ(result.exitCode, c.exitCode) << c.args[1] << ": " << result.err;
        EXPECT_NE(result.err.find(c.errPart), std::string::npos) << c.args[1] << ": " << result.err;
        EXPECT_EQ(testing_support::readFile(file), "precious") << c.args[1];
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1) << c.args[1];
    }
}

// Peak memory (kB) of one run of the program with `args`, measured by a parent of its own.
long peakKilobytes(const std::vector<std::string>& args)
{
    std::vector<std::string> argv{"python3", "-c",
                                  "import resource, subprocess, sys\n"
                                  "subprocess.run(sys.argv[1:], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)\n"
                                  "print(resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss)",
                                  TVPOLICY_CLI};
    argv.insert(argv.end(), args.begin(), args.end());
    return std::stol(testing_support::runProgram(argv).out);
}

// An endless answer ends at the body cap: the program grows by about the cap (a buffer that
// doubles, and what an instrumented build keeps of freed memory), never by what the stream
// would have grown it to within the time limit. Measured against a small answer, so the
// comparison holds in any build.
TEST(HttpCommand, EndlessAnswerStaysWithinTheCap)
{
    peers::HttpPeer server;
    auto result = runCli({"http", "get", server.url("/endless"), "--max-size", "8000000", "--timeout", "20"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("larger than 8000000 bytes"), std::string::npos) << result.err;
    long small = peakKilobytes({"http", "get", server.url("/echo")});
    long endless = peakKilobytes({"http", "get", server.url("/endless"), "--max-size", "8000000", "--timeout", "20"});
    EXPECT_LT(endless - small, 64 * 1024)
        << "kB: " << small << " for a small answer, " << endless << " for an endless one";
}

TEST(DiscoverCommand, ListsServersInTheAgentsOrderThenSettings)
{
    peers::Dnsmasq dns({
        "--srv-host=_agent._tcp.corp.test,b.corp.test,443,10,60",
        "--srv-host=_agent._tcp.corp.test,a.corp.test,443,10,20",
        "--srv-host=_agent._tcp.corp.test,z.corp.test,8443,1,99",
        "--txt-record=_agent._tcp.corp.test,server=a.corp.test,port=443",
        "--auth-zone=corp.test",
        "--auth-server=ns.corp.test",
    });
    auto result = runCli({"discover", "agent", "--domain", "corp.test", "--server", dns.address()});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out,
              "SRV 1 99 8443 z.corp.test\nSRV 10 20 443 a.corp.test\nSRV 10 60 443 b.corp.test\n"
              "TXT server=a.corp.test\nTXT port=443\n");

    result = runCli({"discover", "agent", "--domain", "corp.test", "--server", dns.address(), "--json"});
    ASSERT_EQ(result.exitCode, 0) << result.err;
    auto shown = nlohmann::json::parse(result.out);
    EXPECT_EQ(shown["name"], "_agent._tcp.corp.test");
    ASSERT_EQ(shown["srv"].size(), 3u);
    EXPECT_EQ(shown["srv"][1],
              (nlohmann::json{{"priority", 10}, {"weight", 20}, {"port", 443}, {"target", "a.corp.test"}}));
    EXPECT_EQ(shown["txt"], (nlohmann::json{"server=a.corp.test", "port=443"}));
    EXPECT_EQ(shown["error"], nullptr);

    struct Case {
        std::vector<std::string> args;
        int exitCode;
    };
    const std::vector<Case> cases = {
        {{"discover", "other", "--domain", "corp.test", "--server", dns.address()}, 1},
        {{"discover", "agent", "--proto", "udp", "--domain", "corp.test", "--server", dns.address()}, 1},
        {{"discover", "agent", "--domain", "corp.test", "--server", "ns.corp.test"}, 2},
        {{"discover", "agent", "--domain", "corp.test", "--server", "127.0.0.1:0"}, 2},
        {{"discover"}, 2},
    };
    for (const Case& c : cases) {
        result = runCli(c.args);
        EXPECT_EQ(result.exitCode, c.exitCode) << c.args.back() << ": " << result.err;
        EXPECT_EQ(result.out, "");
    }
}

// Nothing found says why: the name server answered that there is no such name or record (1),
// or it gave no usable answer (3), in words and as the JSON "error".
TEST(DiscoverCommand, TellsNoRecordsFromNoAnswer)
{
    peers::Dnsmasq authoritative({"--auth-zone=corp.test", "--auth-server=ns.corp.test",
                                  "--srv-host=_agent._tcp.corp.test,a.corp.test,443,10,20"});
    peers::Dnsmasq forwarder({});  // no upstream: it refuses what it does not hold
    peers::SilentNameServer silent;
    struct Case {
        std::string title;
        std::string service;
        std::string server;
        int exitCode;
        std::string error;
        std::string inMessage;
    };
    const std::vector<Case> cases = {
        {"NoSuchName", "other", authoritative.address(), 1, "no-such-name",
         "answered: there is no name _other._tcp.corp.test"},
        {"Refused", "agent", forwarder.address(), 3, "no-answer", "refused or failed the question"},
        {"NothingListening", "agent", "127.0.0.1:1", 3, "no-answer", "refused or failed"},
        {"Silent", "agent", silent.address(), 3, "no-answer",
         "no answer from the name server " + silent.address() + " within 5 s"},
    };
    for (const Case& c : cases) {
        auto text = runCli({"discover", c.service, "--domain", "corp.test", "--server", c.server});
        EXPECT_EQ(text.exitCode, c.exitCode) << c.title << ": " << text.err;
        EXPECT_EQ(text.out, "") << c.title;
        EXPECT_NE(text.err.find(c.inMessage), std::string::npos) << c.title << ": " << text.err;
        auto json = runCli({"discover", c.service, "--domain", "corp.test", "--server", c.server, "--json"});
        EXPECT_EQ(json.exitCode, c.exitCode) << c.title;
        auto shown = nlohmann::json::parse(json.out);
        EXPECT_EQ(shown["error"], c.error) << c.title;
        EXPECT_NE(shown.value("message", "").find(c.inMessage), std::string::npos) << c.title << ": " << json.out;
    }
}

}  // namespace

namespace {

// Without --domain and --server, discover asks the system's resolver for the host's search
// domain. Run in a network and mount namespace of the test's own, whose /etc/resolv.conf names a
// dnsmasq on the namespace's loopback: the machine's own name server is never asked.
TEST(DiscoverCommand, UsesTheSystemsResolverAndSearchDomain)
{
    if (testing_support::runProgram({"unshare", "-mn", "true"}).exitCode != 0) {
        GTEST_SKIP() << "no permission to make network and mount namespaces";
    }
    testing_support::TempDir dir;
    auto conf = dir.write("resolv.conf", "search corp.test other.test\nnameserver 127.0.0.1\n");
    std::string script =
        "ip link set lo up && mount --bind \"$1\" /etc/resolv.conf || exit 90\n"
        "dnsmasq --keep-in-foreground --no-resolv --no-hosts --bind-interfaces --listen-address=127.0.0.1 "
        "--port=53 --pid-file= --user=root --srv-host=_agent._tcp.corp.test,a.corp.test,443,1,1 "
        "--txt-record=_agent._tcp.corp.test,ok=1 2>/dev/null &\n"
        "for i in $(seq 200); do \"$2\" discover agent >/dev/null && break; sleep 0.05; done\n"
        "\"$2\" discover agent; status=$?; kill $!; wait; exit $status\n";
    auto result =
        testing_support::runProgram({"unshare", "-mn", "sh", "-c", script, "sh", conf.string(), TVPOLICY_CLI});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out, "SRV 1 1 443 a.corp.test\nTXT ok=1\n");
}

}  // namespace

namespace {

// An include that cannot be read ends the run with 3 and the cause, never the reader's "unable
// to read from socket".
TEST(RunIncludes, NameTheCauseOfAFailedFetch)
{
    peers::HttpPeer plain;
    peers::HttpPeer tls(true);
    struct Case {
        std::string url;
        std::string cause;
    };
    const std::vector<Case> cases = {
        {plain.url("/status/404"), "the server answered with status 404"},
        {plain.url("/status/503"), "the server answered with status 503"},
        {plain.url("/moved"),
         "the server answered with status 302, a redirect to " + plain.url("/echo") + " that is not followed"},
        {plain.url("/endless"), "the document is larger than 16777216 bytes"},
        {tls.url("/echo"), "the server's certificate is not trusted ("},
    };
    for (const Case& c : cases) {
        testing_support::TempDir dir;
        auto policy =
            dir.write("p.xml", "<policy name=\"p\">\n<include id=\"remote\" url=\"" + c.url + "\"/>\n</policy>\n");
        auto result = runCli({"run", policy.string(), "-q"});
        EXPECT_EQ(result.exitCode, 3) << c.url << ": " << result.err;
        EXPECT_NE(result.err.find("cannot read the included section at " + c.url + ": " + c.cause), std::string::npos)
            << result.err;
        EXPECT_EQ(result.err.find("socket"), std::string::npos) << result.err;
    }
}

}  // namespace
