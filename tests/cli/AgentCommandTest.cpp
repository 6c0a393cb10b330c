// tvpolicy agent against the reference server as a real HTTP(S) peer.
#include <sys/stat.h>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/ChildProcess.h"
#include "support/NetNamespace.h"
#include "support/ProcessWatch.h"
#include "support/ReferenceServer.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing_support::ChildProcess;
using testing_support::ReferenceServer;
using testing_support::runCli;
using testing_support::TempDir;
using Json = nlohmann::json;

namespace {

const std::string examples = std::string(TVPOLICY_SOURCE_DIR) + "/examples/";

std::vector<std::string> onceAgainst(const std::string& url, const TempDir& state,
                                     const std::string& config = "/dev/null")
{
    return {"agent",    "--once", "--allow-http", "--server", url, "--state-dir", (state.path() / "state").string(),
            "--config", config};
}

std::filesystem::path privateFile(const TempDir& dir, const std::string& name, const std::string& text)
{
    auto path = dir.write(name, text);
    ::chmod(path.c_str(), 0600);
    return path;
}

std::size_t pendingCount(const TempDir& state)
{
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(state.path() / "state" / "pending")) {
        count += entry.path().extension() == ".json";
    }
    return count;
}

// The requests of one cycle without the progress posts, which are checked on their own.
std::vector<std::string> withoutProgress(std::vector<std::string> lines)
{
    lines.erase(std::remove(lines.begin(), lines.end(), "POST /agent/report/progress"), lines.end());
    return lines;
}

struct VerdictCase {
    std::string policy;
    int exitCode;
    std::string verdictPath;
    bool passed;
};

class AgentVerdict : public ::testing::TestWithParam<VerdictCase> {};

TEST_P(AgentVerdict, TheServerSeesTheProtocolInOrder)
{
    const VerdictCase& c = GetParam();
    ReferenceServer server({"--policy", examples + c.policy});
    ASSERT_TRUE(server.started());
    TempDir state;
    auto result = runCli(onceAgainst(server.url(), state));
    EXPECT_EQ(result.exitCode, c.exitCode) << result.err;

    EXPECT_THAT(withoutProgress(server.requestLines()),
                ElementsAre("GET /agent/config", "GET /agent/status", "GET /agent/scan", "POST /agent/report/init",
                            "POST /agent/report/results", "GET " + c.verdictPath));
    std::vector<Json> requests = server.requests();
    EXPECT_EQ(requests[2]["query"], "scan=default&uid=agent-uid-1");

    // Progress: one post per section, counted, between init and results.
    std::vector<std::string> progress;
    for (const Json& request : requests) {
        if (request["path"] == "/agent/report/progress") {
            progress.push_back(request["body"]);
        }
    }
    ASSERT_FALSE(progress.empty());
    EXPECT_THAT(progress.front(), HasSubstr("&done=1&total="));
    EXPECT_THAT(progress.back(), HasSubstr("&done=" + std::to_string(progress.size()) + "&total="));

    const Json& results = requests[requests.size() - 2];
    EXPECT_EQ(results["contentType"], "application/json");
    Json document = Json::parse(results["body"].get<std::string>());
    EXPECT_EQ(document["passed"], c.passed);
    EXPECT_EQ(document["agent"]["uid"], "agent-uid-1");

    auto status =
        runCli({"agent", "--status", "--state-dir", (state.path() / "state").string(), "--config", "/dev/null"});
    EXPECT_EQ(status.exitCode, 0);
    EXPECT_THAT(status.out, HasSubstr(c.passed ? "passed at " : "failed at "));
}

INSTANTIATE_TEST_SUITE_P(Examples, AgentVerdict,
                         ::testing::Values(VerdictCase{"compliant.xml", 0, "/agent/report/success", true},
                                           VerdictCase{"noncompliant.xml", 1, "/agent/report/failure", false}));

TEST(AgentLogin, SendsTheFieldsInOrderAndKeepsTheCookie)
{
    ReferenceServer server(
        {"--policy", examples + "compliant.xml", "--login", "username=alice", "--login", "password=s3cret&more"});
    ASSERT_TRUE(server.started());
    TempDir dir;
    auto config = privateFile(dir, "agent.toml", "[login]\npassword = \"s3cret&more\"\nusername = \"alice\"\n");
    auto result = runCli(onceAgainst(server.url(), dir, config.string()));
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::vector<Json> requests = server.requests();
    ASSERT_GE(requests.size(), 3u);
    EXPECT_EQ(requests[1]["path"], "/agent/login");
    EXPECT_EQ(requests[1]["body"], "username=alice&password=s3cret%26more");
    EXPECT_EQ(requests[1]["contentType"], "application/x-www-form-urlencoded");
    EXPECT_EQ(requests[2]["cookie"], "session=s3ss10n");
    EXPECT_THAT(result.err, ::testing::Not(HasSubstr("s3cret")));
    for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.path() / "state")) {
        if (entry.is_regular_file()) {
            EXPECT_THAT(testing_support::readFile(entry.path()), ::testing::Not(HasSubstr("s3cret")));
        }
    }
}

TEST(AgentLogin, RefusedLoginEndsWithFour)
{
    ReferenceServer server({"--policy", examples + "compliant.xml", "--login", "username=alice"});
    ASSERT_TRUE(server.started());
    TempDir dir;
    auto config = privateFile(dir, "agent.toml", "[login]\nusername = \"mallory\"\n");
    auto result = runCli(onceAgainst(server.url(), dir, config.string()));
    EXPECT_EQ(result.exitCode, 4) << result.err;
    EXPECT_THAT(result.err, HasSubstr("The user name or password is wrong."));
    EXPECT_THAT(server.requestLines(), ElementsAre("GET /agent/config", "POST /agent/login"));
}

struct ConfigCase {
    std::string name;
    std::string text;
    mode_t mode;
    std::string message;
};

class AgentConfigFile : public ::testing::TestWithParam<ConfigCase> {};

TEST_P(AgentConfigFile, IsRefusedNamingTheProblem)
{
    TempDir dir;
    auto config = dir.write("agent.toml", GetParam().text);
    ::chmod(config.c_str(), GetParam().mode);
    auto result = runCli({"agent", "--once", "--config", config.string(), "--state-dir", (dir.path() / "s").string()});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.err, HasSubstr(GetParam().message));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AgentConfigFile,
    ::testing::Values(ConfigCase{"UnknownKey", "sever = \"https://a\"\n", 0600, "unknown key `sever`"},
                      ConfigCase{"WrongType", "allow_http = \"yes\"\n", 0600, "`allow_http` must be true or false"},
                      ConfigCase{"BadInterval", "interval = \"soon\"\n", 0600, "`interval` must be a duration"},
                      ConfigCase{"ScriptsNotAList", "scripts = 3\n", 0600, "`scripts` must be a list"},
                      ConfigCase{"SecretsReadable", "[login]\nusername = \"a\"\n", 0644, "chmod 600"},
                      ConfigCase{"PlainHttpNotAllowed", "server = \"http://127.0.0.1:1\"\n", 0600, "allow_http = true"},
                      ConfigCase{"NotToml", "interval = 1\nserver = nac.example.net\n", 0600,
                                 "agent.toml:2: `nac.example.net` is not a value (a text needs quotes)"},
                      ConfigCase{"HeaderAcrossLines", "[\nlogin]\n\"\"=\"\"\n", 0600,
                                 "agent.toml:1: expected a key, found the end of the line"},
                      ConfigCase{"CharacterOutsideText",
                                 "intrval=3\xcd\xa3"
                                 "acert\x01\"",
                                 0600, "agent.toml:1: expected the end of the line, found U+0363"}),
    [](const auto& testCase) { return testCase.param.name; });

// Results the server does not take wait in the state directory, and go at the next cycle it
// accepts, once each, oldest first.
TEST(AgentQueue, ResultsRefusedWithServiceUnavailableArriveLaterOnceEach)
{
    ReferenceServer server({"--policy", examples + "compliant.xml", "--fail", "/agent/report/results=503"});
    ASSERT_TRUE(server.started());
    TempDir state;
    for (int cycle = 0; cycle < 3; ++cycle) {
        EXPECT_EQ(runCli(onceAgainst(server.url(), state)).exitCode, 0);
    }
    EXPECT_EQ(pendingCount(state), 3u);
    EXPECT_TRUE(server.storedResults().empty());

    ASSERT_TRUE(server.control({{"fail", Json::object()}}));
    EXPECT_EQ(runCli(onceAgainst(server.url(), state)).exitCode, 0);
    std::vector<std::string> stored = server.storedResults();
    ASSERT_EQ(stored.size(), 4u);
    std::vector<std::string> cycles;
    cycles.reserve(stored.size());
    for (const std::string& body : stored) {
        cycles.push_back(Json::parse(body)["agent"]["cycle"].get<std::string>());
    }
    EXPECT_TRUE(std::is_sorted(cycles.begin(), cycles.end()));
    EXPECT_EQ(std::unique(cycles.begin(), cycles.end()), cycles.end()) << "a result arrived twice";
    EXPECT_EQ(pendingCount(state), 0u);
}

struct ScriptCase {
    std::string name;
    std::string scripts;  // the configuration's setting
    bool runs;
};

class AgentScripts : public ::testing::TestWithParam<ScriptCase> {};

TEST_P(AgentScripts, OnlyListedCommandsRun)
{
    TempDir dir;
    auto marker = dir.path() / "ran";
    std::string command = "touch " + marker.string() + "; echo 7";
    auto policy = dir.write("policy.xml",
                            "<policy name='p'><section name='Script' primary='true'>"
                            "<VersionFromScript script='" +
                                command +
                                "' required='5'/>"
                                "</section></policy>");
    ReferenceServer server({"--policy", policy.string()});
    ASSERT_TRUE(server.started());
    std::string setting = GetParam().scripts == "list" ? "[\"" + command + "\"]" : GetParam().scripts;
    auto config = privateFile(dir, "agent.toml", "scripts = " + setting + "\n");
    auto result = runCli(onceAgainst(server.url(), dir, config.string()));
    EXPECT_EQ(result.exitCode, GetParam().runs ? 0 : 1) << result.err;
    EXPECT_EQ(std::filesystem::exists(marker), GetParam().runs);
    ASSERT_EQ(server.storedResults().size(), 1u);
    std::string results = server.storedResults().front();
    EXPECT_EQ(results.find("is not in the agent's `scripts` setting") != std::string::npos, !GetParam().runs);
}

INSTANTIATE_TEST_SUITE_P(Settings, AgentScripts,
                         ::testing::Values(ScriptCase{"Unlisted", "[\"uname -r\"]", false},
                                           ScriptCase{"Listed", "list", true}, ScriptCase{"Any", "\"any\"", true}),
                         [](const auto& testCase) { return testCase.param.name; });

struct BrokenCase {
    std::string name;
    std::vector<std::string> serverArguments;
};

class AgentBrokenServer : public ::testing::TestWithParam<BrokenCase> {};

TEST_P(AgentBrokenServer, IsAFailedCycle)
{
    ReferenceServer server(GetParam().serverArguments);
    ASSERT_TRUE(server.started());
    TempDir state;
    auto result = runCli(onceAgainst(server.url(), state));
    EXPECT_EQ(result.exitCode, 3) << result.err;
    EXPECT_FALSE(std::filesystem::exists(state.path() / "state" / "last-verdict.json"));
}

INSTANTIATE_TEST_SUITE_P(
    Answers, AgentBrokenServer,
    ::testing::Values(BrokenCase{"ConfigAnswers500", {"--fail", "/agent/config=500"}},
                      BrokenCase{"StatusError", {"--fail", "/agent/status=502"}},
                      BrokenCase{"NotAPolicy", {"--policy", examples + "agent-config.xml"}}, BrokenCase{"NoPolicy", {}},
                      BrokenCase{"EndlessPolicy",
                                 {"--policy", examples + "compliant.xml", "--endless", "/agent/scan"}}),
    [](const auto& testCase) { return testCase.param.name; });

TEST(AgentBrokenServer, NoServerListeningIsUnreached)
{
    TempDir state;
    auto result = runCli(onceAgainst("http://127.0.0.1:9", state));
    EXPECT_EQ(result.exitCode, 3);
    EXPECT_THAT(result.err, HasSubstr("unreached"));
}

struct StopCase {
    std::string name;
    std::vector<std::string> serverArguments;
    std::string lastRequest;  // the agent is stopped once the server has seen it
    std::chrono::milliseconds after;
};

class AgentStop : public ::testing::TestWithParam<StopCase> {};

// A stop ends what the agent waits for (a stalled request, a backoff) and it exits by itself.
TEST_P(AgentStop, TermStopsWithinASecond)
{
    ReferenceServer server(GetParam().serverArguments);
    ASSERT_TRUE(server.started());
    TempDir state;
    std::vector<std::string> argv = {TVPOLICY_CLI,
                                     "agent",
                                     "--allow-http",
                                     "--server",
                                     server.url(),
                                     "--state-dir",
                                     (state.path() / "state").string(),
                                     "--config",
                                     "/dev/null"};
    ChildProcess agent(argv);
    ASSERT_TRUE(server.waitForRequests(GetParam().lastRequest, 1, std::chrono::seconds(20)));
    std::this_thread::sleep_for(GetParam().after);
    auto sent = std::chrono::steady_clock::now();
    std::optional<int> status = agent.signalAndWait(SIGTERM, std::chrono::seconds(3));
    ASSERT_TRUE(status.has_value());
    EXPECT_EQ(*status, 0);
    EXPECT_LT(std::chrono::steady_clock::now() - sent, std::chrono::milliseconds(1000));
}

INSTANTIATE_TEST_SUITE_P(
    Moments, AgentStop,
    ::testing::Values(
        StopCase{"StalledPolicyRequest",
                 {"--policy", examples + "compliant.xml", "--stall", "/agent/scan"},
                 "/agent/scan",
                 std::chrono::milliseconds(0)},
        StopCase{"StalledResultsPost",
                 {"--policy", examples + "compliant.xml", "--stall", "/agent/report/results"},
                 "/agent/report/results",
                 std::chrono::milliseconds(0)},
        StopCase{"BackoffWait", {"--fail", "/agent/config=500"}, "/agent/config", std::chrono::milliseconds(500)}),
    [](const auto& testCase) { return testCase.param.name; });

struct CheckStopCase {
    std::string name;
    std::string script;  // writes "SHELL-PID CHILD-PID" to $F once its child runs, then waits for it
    bool once;
    int exitCode;
};

class AgentStopDuringChecks : public ::testing::TestWithParam<CheckStopCase> {};

// A stop while a check's command runs ends the command with everything it started, and the
// cycle with it: nothing of the cut-short run is kept or sent.
TEST_P(AgentStopDuringChecks, EndsTheCommandsAndKeepsNothing)
{
    TempDir dir;
    const auto pids = dir.path() / "pids";
    std::string script = "F='" + pids.string() + "'; " + GetParam().script;
    std::string attribute;
    for (char c : script) {
        attribute += c == '&' ? "&amp;" : c == '>' ? "&gt;" : c == '"' ? "&quot;" : std::string(1, c);
    }
    auto policy = dir.write("policy.xml",
                            "<policy name='p'><section name='Script' primary='true'>"
                            "<VersionFromScript script=\"" +
                                attribute +
                                "\" required='5'/>"
                                "</section></policy>");
    ReferenceServer server({"--policy", policy.string()});
    ASSERT_TRUE(server.started());
    auto config = privateFile(dir, "agent.toml", "scripts = \"any\"\n");
    std::vector<std::string> argv = {TVPOLICY_CLI,
                                     "agent",
                                     "--allow-http",
                                     "--server",
                                     server.url(),
                                     "--state-dir",
                                     (dir.path() / "state").string(),
                                     "--config",
                                     config.string()};
    if (GetParam().once) {
        argv.push_back("--once");
    }
    const auto log = dir.path() / "agent.log";
    ChildProcess agent(testing_support::loggingTo(log, argv));
    std::vector<pid_t> started = testing_support::waitForPidLine(pids, std::chrono::seconds(20));
    ASSERT_EQ(started.size(), 2u) << "the command did not start";

    auto sent = std::chrono::steady_clock::now();
    std::optional<int> status = agent.signalAndWait(SIGTERM, std::chrono::seconds(3));
    ASSERT_TRUE(status.has_value());
    EXPECT_EQ(*status, GetParam().exitCode);
    EXPECT_LT(std::chrono::steady_clock::now() - sent, std::chrono::milliseconds(1000));
    for (pid_t pid : started) {
        EXPECT_FALSE(testing_support::processRunning(pid)) << "process " << pid << " of the command was left running";
    }
    EXPECT_THAT(testing_support::readFile(log), HasSubstr("scan default: stopped in"));
    EXPECT_THAT(testing_support::readFile(log), HasSubstr("stopped during the policy run"));
    std::vector<std::string> lines = server.requestLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "POST /agent/report/results"), 0);
    EXPECT_EQ(pendingCount(dir), 0u);
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "state" / "last-verdict.json"));
}

INSTANTIATE_TEST_SUITE_P(
    Commands, AgentStopDuringChecks,
    ::testing::Values(CheckStopCase{"Sleeping", "sleep 30 & echo $$ $! > \"$F\"; wait; echo 7", false, 0},
                      CheckStopCase{"IgnoringTerm", "trap '' TERM; sleep 30 & echo $$ $! > \"$F\"; wait; echo 7", false,
                                    0},
                      CheckStopCase{"SleepingInOneCycle", "sleep 30 & echo $$ $! > \"$F\"; wait; echo 7", true, 3}),
    [](const auto& testCase) { return testCase.param.name; });

// HTTPS: a certificate from a CA given with --cacert is taken; a self-signed one is not.
TEST(AgentTls, TrustsTheGivenAuthorityOnly)
{
    TempDir pki;
    const std::string d = pki.path().string();
    std::string script =
        "set -e; cd " + d +
        ";"
        "openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=test-ca -keyout ca.key -out ca.pem 2>/dev/null;"
        "openssl req -newkey rsa:2048 -nodes -subj /CN=127.0.0.1 -keyout server.key -out server.csr 2>/dev/null;"
        "printf 'subjectAltName=IP:127.0.0.1\\n' > ext;"
        "openssl x509 -req -in server.csr -CA ca.pem -CAkey ca.key -CAcreateserial -days 2 -extfile ext "
        "-out server.pem 2>/dev/null;"
        "openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1 "
        "-keyout self.key -out self.pem 2>/dev/null";
    ASSERT_EQ(testing_support::runProgram({"sh", "-c", script}).exitCode, 0);

    ReferenceServer signedServer(
        {"--policy", examples + "compliant.xml", "--cert", d + "/server.pem", "--key", d + "/server.key"});
    ReferenceServer selfSigned(
        {"--policy", examples + "compliant.xml", "--cert", d + "/self.pem", "--key", d + "/self.key"});
    ASSERT_TRUE(signedServer.started() && selfSigned.started());
    TempDir state;
    auto accepted = runCli({"agent", "--once", "--server", signedServer.url(), "--cacert", d + "/ca.pem", "--state-dir",
                            (state.path() / "s").string(), "--config", "/dev/null"});
    EXPECT_EQ(accepted.exitCode, 0) << accepted.err;
    auto refused = runCli({"agent", "--once", "--server", selfSigned.url(), "--cacert", d + "/ca.pem", "--state-dir",
                           (state.path() / "s").string(), "--config", "/dev/null"});
    EXPECT_EQ(refused.exitCode, 3) << refused.err;
    EXPECT_TRUE(selfSigned.requests().empty());
}

// An address added in a network namespace starts a new cycle within three seconds.
TEST(AgentNotifiers, AnAddressChangeStartsACycle)
{
    testing_support::NetNamespace ns;
    if (!ns.valid()) {
        GTEST_SKIP() << ns.skipReason();
    }
    ASSERT_TRUE(ns.exec("ip link set lo up && ip link add va type veth peer name vb && ip link set va up"));
    ReferenceServer server({"--policy", examples + "compliant.xml"}, {"ip", "netns", "exec", ns.name()});
    ASSERT_TRUE(server.started());
    TempDir state;
    ChildProcess agent({"ip", "netns", "exec", ns.name(), TVPOLICY_CLI, "agent", "--allow-http", "--server",
                        server.url(), "--state-dir", (state.path() / "state").string(), "--config", "/dev/null"});
    ASSERT_TRUE(server.waitForRequests("/agent/report/success", 1, std::chrono::seconds(20)));
    std::this_thread::sleep_for(std::chrono::milliseconds(2500));  // past the first cycle's burst window
    ASSERT_TRUE(ns.exec("ip addr add 10.77.0.1/32 dev va"));
    EXPECT_TRUE(server.waitForRequests("/agent/config", 2, std::chrono::seconds(3)));
    agent.signalAndWait(SIGTERM, std::chrono::seconds(2));
}

}  // namespace

namespace {

// The unit in the repository, pointed at the program just built, passes systemd's own check.
TEST(AgentService, UnitFileVerifies)
{
    if (testing_support::runProgram({"systemd-analyze", "--version"}).exitCode != 0) {
        GTEST_SKIP() << "systemd-analyze cannot run here";
    }
    TempDir dir;
    std::string unit =
        testing_support::readFile(std::string(TVPOLICY_SOURCE_DIR) + "/dist/systemd/tvpolicy-agent.service");
    ASSERT_NE(unit.find("/usr/bin/tvpolicy "), std::string::npos);
    unit.replace(unit.find("/usr/bin/tvpolicy "), 17, TVPOLICY_CLI);
    auto file = dir.write("tvpolicy-agent.service", unit);
    auto result = testing_support::runProgram({"systemd-analyze", "verify", "--man=no", file.string()});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.err, "");
}

}  // namespace

namespace {

// tvpolicy run ADDRESS: the one-shot form, with the same rule for commands.
TEST(RunAddress, FetchesThePolicyAndRunsCommandsOnlyWhenAllowed)
{
    TempDir dir;
    auto marker = dir.path() / "ran";
    dir.write("root/policies/scripted.xml",
              "<policy name='p'><section name='Script' primary='true'><VersionFromScript script='touch " +
                  marker.string() + " &amp;&amp; echo 7' required='5'/></section></policy>");
    ReferenceServer server({"--root", (dir.path() / "root").string()});
    ASSERT_TRUE(server.started());
    const std::string address = server.url() + "/agent/scan?scan=scripted";

    auto refused = runCli({"run", address});
    EXPECT_EQ(refused.exitCode, 1) << refused.err;
    EXPECT_THAT(refused.out, HasSubstr("--allow-scripts"));
    EXPECT_FALSE(std::filesystem::exists(marker));

    auto allowed = runCli({"run", "--allow-scripts", address});
    EXPECT_EQ(allowed.exitCode, 0) << allowed.err;
    EXPECT_TRUE(std::filesystem::exists(marker));

    EXPECT_EQ(runCli({"run", server.url() + "/agent/scan?scan=missing"}).exitCode, 3);
}

}  // namespace

namespace {

std::vector<std::string> loopAgainst(const std::string& url, const TempDir& dir, const std::string& config)
{
    return {TVPOLICY_CLI, "agent", "--allow-http", "--server", url, "--state-dir", (dir.path() / "state").string(),
            "--config",   config};
}

TEST(AgentLoop, RunsTheServersMonitorsAndPostsTheirStatus)
{
    TempDir dir;
    dir.write("root/monitors.xml", testing_support::readFile(examples + "monitors.xml"));
    ReferenceServer server({"--root", (dir.path() / "root").string(), "--policy", examples + "compliant.xml"});
    ASSERT_TRUE(server.started());
    ChildProcess agent(loopAgainst(server.url(), dir, "/dev/null"));
    ASSERT_TRUE(server.waitForRequests("/agent/monitor", 3, std::chrono::seconds(20)));
    std::vector<std::string> bodies;
    for (const Json& request : server.requests()) {
        if (request["path"] == "/agent/monitor") {
            bodies.push_back(request["body"]);
        }
    }
    EXPECT_THAT(bodies.front(), HasSubstr("<monitor><id>agent-alive</id><status>true</status></monitor>"));
    EXPECT_EQ(agent.signalAndWait(SIGTERM, std::chrono::seconds(2)), 0);
}

TEST(AgentLoop, HangUpRereadsTheInterval)
{
    TempDir dir;
    ReferenceServer server({"--policy", examples + "compliant.xml"});
    ASSERT_TRUE(server.started());
    auto config = privateFile(dir, "agent.toml", "interval = \"1h\"\n");
    ChildProcess agent(loopAgainst(server.url(), dir, config.string()));
    ASSERT_TRUE(server.waitForRequests("/agent/report/success", 1, std::chrono::seconds(20)));
    privateFile(dir, "agent.toml", "interval = \"1s\"\n");
    ASSERT_EQ(::kill(agent.pid(), SIGHUP), 0);
    // The reread starts a cycle, and then one comes about every second.
    EXPECT_TRUE(server.waitForRequests("/agent/report/success", 4, std::chrono::seconds(6)));
    EXPECT_EQ(agent.signalAndWait(SIGTERM, std::chrono::seconds(2)), 0);
}

}  // namespace
