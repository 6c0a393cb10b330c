#include <tvpolicy/host/Utilities.h>

#include <regex>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "support/RunCli.h"
#include "support/TempDir.h"

using testing_support::runCli;

namespace {

std::vector<std::string> linesOf(std::string text)
{
    std::vector<std::string> lines;
    std::string newline = "\n";
    split(text, newline, lines);
    return lines;
}

std::string status(const std::string& id, bool passed)
{
    return "<monitor><id>" + id + "</id><status>" + (passed ? "true" : "false") + "</status></monitor>";
}

TEST(MonitorCommand, OnceRunsTheExampleAndPasses)
{
    auto result = runCli({"monitor", "--once", std::string(TVPOLICY_SOURCE_DIR) + "/examples/monitors.xml"});
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(linesOf(result.out), (std::vector<std::string>{status("agent-alive", true), status("no-p2p-client", true),
                                                             status("remote-access-approved", true)}));
}

TEST(MonitorCommand, OnceFailsWhenAnyMonitorReportsFalse)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml",
                          "<m><Monitor id='a'><true/></Monitor><Monitor id='b'><false/></Monitor>"
                          "<Monitor id='c' prohibit='true'><false/></Monitor></m>");
    auto result = runCli({"monitor", file.string(), "--once"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(linesOf(result.out),
              (std::vector<std::string>{status("a", true), status("b", false), status("c", true)}));
}

// Both monitors are due at start and every second after; the first always runs first.
TEST(MonitorCommand, RunsEachMonitorWhenDueInOrder)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml",
                          "<m><Monitor id='first' period='1'><true/></Monitor>"
                          "<Monitor id='second' period='1' prohibit='true'><true/></Monitor>"
                          "<Monitor id='single'><true/></Monitor></m>");
    auto result = runCli({"monitor", file.string(), "--count", "7"});
    EXPECT_EQ(result.exitCode, 1) << result.err;  // 'second' reported false
    auto first = status("first", true);
    auto second = status("second", false);
    EXPECT_EQ(linesOf(result.out),
              (std::vector<std::string>{first, second, status("single", true), first, second, first, second}));
}

struct UsageCase {
    std::vector<std::string> args;
    std::string document;  // written to a file put after args; none when empty
    std::string inErr;
};

class MonitorUsageTest : public testing::TestWithParam<UsageCase> {};

TEST_P(MonitorUsageTest, ExitsTwoWithAMessage)
{
    testing_support::TempDir dir;
    std::vector<std::string> args = GetParam().args;
    if (!GetParam().document.empty()) {
        args.push_back(dir.write("m.xml", GetParam().document).string());
    }
    auto result = runCli(args);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find(GetParam().inErr), std::string::npos) << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Usage, MonitorUsageTest,
    testing::Values(UsageCase{{"monitor", "/no/such/monitors.xml"}, "", "cannot read '/no/such/monitors.xml'"},
                    UsageCase{{"monitor", "--once"}, "<m><monitor id='lower-case'/></m>", "holds no Monitor element"},
                    UsageCase{{"monitor", "--once"}, "not xml", "not XML: "},
                    UsageCase{
                        {"monitor", "--once"}, "<monitors><Monitor id='a' period='5'><true/></Monitor>", "not XML: "},
                    UsageCase{{"monitor", "--once"}, " \n", "holds only white space"},
                    UsageCase{{"monitor", "--once", "--count", "2"}, "<Monitor id='a'/>", "excludes"},
                    UsageCase{{"monitor", "--count", "0"}, "<Monitor id='a'/>", "--count: must be at least 1"}));

// "-" reads the monitors from standard input.
TEST(MonitorCommand, ReadsStandardInput)
{
    auto result =
        runCli({"monitor", "--once", "-"}, "<monitors><Monitor id='a' period='5'><true/></Monitor></monitors>");
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_NE(result.out.find("<status>true</status>"), std::string::npos) << result.out;
}

class MonitorSignalTest : public testing::TestWithParam<const char*> {};

// The loop waits for a next run that is practically never due (the period saturates the clock);
// the signal ends it at once, between runs, with 0.
TEST_P(MonitorSignalTest, StopsCleanlyBetweenRuns)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml", "<Monitor id='slow' period='99999999999999999999'><true/></Monitor>");
    auto out = dir.path() / "out";
    std::string script =
        "\"$0\" monitor \"$1\" > \"$2\" 2>/dev/null & pid=$!\n"
        "i=0; while [ ! -s \"$2\" ] && [ $i -lt 400 ]; do sleep 0.05; i=$((i+1)); done\n"
        "kill -" +
        std::string(GetParam()) +
        " $pid\n"
        "i=0; while kill -0 $pid 2>/dev/null && [ $i -lt 400 ]; do sleep 0.05; i=$((i+1)); done\n"
        "kill -0 $pid 2>/dev/null && { kill -KILL $pid; echo hung; }\n"
        "wait $pid; echo \"exit=$?\"; cat \"$2\"\n";
    auto result = testing_support::runProgram({"sh", "-c", script, TVPOLICY_CLI, file.string(), out.string()});
    EXPECT_EQ(linesOf(result.out), (std::vector<std::string>{"exit=0", status("slow", true)})) << result.err;
}

INSTANTIATE_TEST_SUITE_P(Signals, MonitorSignalTest, testing::Values("TERM", "INT"));

}  // namespace

namespace {

struct UnreadCase {
    std::string title;
    std::string document;
    std::string warning;  // on standard error of --once, and a finding of lint
};

class MonitorUnreadTest : public testing::TestWithParam<UnreadCase> {};

// What a monitor does not evaluate is never passed in silence: warned, refused by --strict,
// found by lint.
TEST_P(MonitorUnreadTest, IsWarnedRefusedAndLinted)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml", GetParam().document).string();
    auto once = runCli({"monitor", file, "--once"});
    EXPECT_NE(once.err.find("tvpolicy monitor: warning: line "), std::string::npos) << once.err;
    EXPECT_NE(once.err.find(GetParam().warning), std::string::npos) << once.err;
    auto strict = runCli({"monitor", file, "--once", "--strict"});
    EXPECT_EQ(strict.exitCode, 2);
    EXPECT_EQ(strict.out, "");
    auto lint = runCli({"lint", file});
    EXPECT_EQ(lint.exitCode, 1) << lint.out << lint.err;
    EXPECT_NE(lint.out.find(GetParam().warning), std::string::npos) << lint.out;
}

INSTANTIATE_TEST_SUITE_P(
    Documents, MonitorUnreadTest,
    testing::Values(
        UnreadCase{"MisspeltElement",
                   "<monitors>\n<Monitor id='telnet' prohibit='true'><processExists procName='in.telnetd'/></Monitor>\n"
                   "</monitors>",
                   "<processExists> in monitor 'telnet' names no check kind"},
        UnreadCase{"MisspeltAttribute",
                   "<monitors>\n<Monitor id='shell'><ProcessExists procname='bash'/></Monitor>\n</monitors>",
                   "attribute 'procname' of <ProcessExists> in monitor 'shell' is not one that ProcessExists reads"},
        UnreadCase{"MonitorAttribute", "<monitors>\n<Monitor id='a' perod='5'><true/></Monitor>\n</monitors>",
                   "attribute 'perod' of <Monitor> 'a' is not one that a monitor reads"}),
    [](const testing::TestParamInfo<UnreadCase>& testCase) { return testCase.param.title; });

TEST(MonitorCommand, CountExitsByTheStatuses)
{
    testing_support::TempDir dir;
    auto failing = dir.write("f.xml", "<m><Monitor id='a'><true/></Monitor><Monitor id='b'><false/></Monitor></m>");
    EXPECT_EQ(runCli({"monitor", failing.string(), "--count", "2"}).exitCode, 1);
    auto passing = dir.write("p.xml", "<m><Monitor id='a'><true/></Monitor></m>");
    EXPECT_EQ(runCli({"monitor", passing.string(), "--count", "1"}).exitCode, 0);
    auto lint = runCli({"lint", std::string(TVPOLICY_SOURCE_DIR) + "/examples/monitors.xml"});
    EXPECT_EQ(lint.exitCode, 0) << lint.out;
    EXPECT_NE(lint.out.find("note: monitor 'no-p2p-client' has prohibit=\"true\""), std::string::npos) << lint.out;
}

}  // namespace

namespace {

struct WhyCase {
    std::string title;
    std::string monitor;  // one Monitor element with id 'm'
    bool status;
    std::string why;                  // on standard error and in the JSON line; empty for a true status
    std::vector<std::string> checks;  // the kinds performed, in order
};

class MonitorWhyTest : public testing::TestWithParam<WhyCase> {};

// A false status says which check decided it and what it found, in text and in JSON; a check
// after the first failing one is not performed.
TEST_P(MonitorWhyTest, SaysWhichCheckDecided)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml", "<monitors>" + GetParam().monitor + "</monitors>").string();
    auto text = runCli({"monitor", file, "--once"});
    EXPECT_EQ(text.exitCode, GetParam().status ? 0 : 1) << text.err;
    EXPECT_EQ(text.out, status("m", GetParam().status) + "\n");
    if (GetParam().why.empty()) {
        EXPECT_EQ(text.err.find("reported false"), std::string::npos) << text.err;
    } else {
        EXPECT_NE(text.err.find("tvpolicy monitor: 'm' reported false: " + GetParam().why), std::string::npos)
            << text.err;
    }

    auto json = runCli({"monitor", file, "--count", "1", "--json"});
    EXPECT_EQ(json.exitCode, GetParam().status ? 0 : 1) << json.err;
    auto line = nlohmann::json::parse(json.out);
    EXPECT_EQ(line["id"], "m");
    EXPECT_EQ(line["status"], GetParam().status);
    EXPECT_TRUE(std::regex_match(line["time"].get<std::string>(), std::regex(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\dZ)")))
        << line["time"];
    std::vector<std::string> kinds;
    for (const auto& check : line["checks"]) {
        kinds.push_back(check["type"].get<std::string>());
        EXPECT_TRUE(check["passed"].is_boolean());
    }
    EXPECT_EQ(kinds, GetParam().checks);
    EXPECT_EQ(line.value("why", ""), GetParam().why) << json.out;
}

INSTANTIATE_TEST_SUITE_P(
    Monitors, MonitorWhyTest,
    testing::Values(WhyCase{"AllPass", "<Monitor id='m'><true/><true/></Monitor>", true, "", {"true", "true"}},
                    WhyCase{"StopsAtTheFirstFailure",
                            "<Monitor id='m'><true/><false/><true/></Monitor>",
                            false,
                            "check false failed",
                            {"true", "false"}},
                    WhyCase{"ProcessNotRunning",
                            "<Monitor id='m'><ProcessExists procName='no-such-process-tvpolicy'/></Monitor>",
                            false,
                            "check ProcessExists (Process Not Running) failed",
                            {"ProcessExists"}},
                    WhyCase{"ProhibitedAndFound",
                            "<Monitor id='m' prohibit='true'><true/></Monitor>",
                            false,
                            "it is prohibited and every check passed: true",
                            {"true"}},
                    WhyCase{"ProhibitedAndAbsent",
                            "<Monitor id='m' prohibit='true'><true/><false/></Monitor>",
                            true,
                            "",
                            {"true", "false"}},
                    WhyCase{"NoCheck", "<Monitor id='m'/>", false, "it holds no check", {}}),
    [](const testing::TestParamInfo<WhyCase>& testCase) { return testCase.param.title; });

}  // namespace
