#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <string>
#include <vector>

#include "support/RunCli.h"
#include "support/TempDir.h"

using testing_support::runCli;
using testing_support::runProgram;

namespace {

// Each case's sleeps have lengths of their own, so that a process left behind is found by name.
bool running(const std::string& pattern) { return runProgram({"pgrep", "-f", pattern}).exitCode == 0; }

std::string policyWith(const std::string& script)
{
    return "<policy name=\"p\">\n<section name=\"s\" primary=\"true\"><VersionFromScript script=\"" + script +
           "\" operation=\"gte\" required=\"1\"/></section>\n</policy>\n";
}

struct TimeoutCase {
    std::string title;
    std::string script;
    std::vector<std::string> leftovers;  // patterns of processes that must be gone afterwards
    int exitCode;
    std::string cause;  // empty: none
};

class CommandTimeoutTest : public testing::TestWithParam<TimeoutCase> {};

TEST_P(CommandTimeoutTest, EndsTheCommandsGroupAndSaysSo)
{
    testing_support::TempDir dir;
    auto policy = dir.write("p.xml", policyWith(GetParam().script)).string();
    auto started = std::chrono::steady_clock::now();
    auto text = runCli({"run", policy, "-q", "--command-timeout", "0.5"});
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(10));
    EXPECT_EQ(text.exitCode, GetParam().exitCode) << text.err;
    for (const std::string& pattern : GetParam().leftovers) {
        EXPECT_FALSE(running(pattern)) << pattern << " was left behind";
    }
    auto json = runCli({"run", policy, "-q", "--command-timeout", "0.5", "--json"});
    auto task = nlohmann::json::parse(json.out)["items"][0]["tasks"][0];
    if (GetParam().cause.empty()) {
        EXPECT_FALSE(task.contains("cause")) << task;
    } else {
        EXPECT_NE(text.out.find("failed (" + GetParam().cause), std::string::npos) << text.out;
        EXPECT_EQ(task.value("cause", "").rfind(GetParam().cause, 0), 0u) << task;
    }
}

const std::string timedOut =
    "the command did not finish within 0.5 s (--command-timeout); it and its process group "
    "were ended";

INSTANTIATE_TEST_SUITE_P(
    Scripts, CommandTimeoutTest,
    testing::Values(TimeoutCase{"Finishes", "echo 5", {}, 0, ""},
                    TimeoutCase{"Sleeps", "sleep 31.4151; echo 5", {"sleep 31.4151"}, 1, timedOut},
                    TimeoutCase{"StartsBackgroundChildren",
                                "sleep 31.4152 &amp; sleep 31.4153; echo 5",
                                {"sleep 31.4152", "sleep 31.4153"},
                                1,
                                timedOut},
                    TimeoutCase{"IgnoresTerm", "trap '' TERM; sleep 31.4154; echo 5", {"sleep 31.4154"}, 1, timedOut},
                    TimeoutCase{"ReadsStandardInput", "read line; echo 5", {}, 0, ""}),
    [](const testing::TestParamInfo<TimeoutCase>& testCase) { return testCase.param.title; });

// A monitor's script is bounded the same way: the check fails with the time-out as its cause,
// in the line on standard error and in JSON, and nothing of the script is left running.
struct MonitorTimeoutCase {
    std::string title;
    std::vector<std::string> mode;  // --once, or --count N
};

class MonitorTimeoutTest : public testing::TestWithParam<MonitorTimeoutCase> {};

TEST_P(MonitorTimeoutTest, FailsTheCheckAndEndsTheGroup)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml",
                          "<m><Monitor id=\"slow\"><VersionFromScript script=\"sleep 31.4157 &amp; sleep 31.4158; "
                          "echo 5\" operation=\"gte\" required=\"1\"/></Monitor></m>")
                    .string();
    std::vector<std::string> args = {"monitor", file, "--command-timeout", "0.5"};
    args.insert(args.end(), GetParam().mode.begin(), GetParam().mode.end());
    auto text = runCli(args);
    EXPECT_EQ(text.exitCode, 1) << text.err;
    EXPECT_EQ(text.out, "<monitor><id>slow</id><status>false</status></monitor>\n");
    EXPECT_NE(text.err.find("'slow' reported false: check VersionFromScript ("), std::string::npos) << text.err;
    EXPECT_NE(text.err.find(timedOut), std::string::npos) << text.err;
    for (const char* pattern : {"sleep 31.4157", "sleep 31.4158"}) {
        EXPECT_FALSE(running(pattern)) << pattern << " was left behind";
    }
    args.push_back("--json");
    auto json = runCli(args);
    auto check = nlohmann::json::parse(json.out)["checks"][0];
    EXPECT_EQ(check.value("cause", ""), timedOut) << check;
    EXPECT_FALSE(check.value("passed", true)) << check;
}

INSTANTIATE_TEST_SUITE_P(Modes, MonitorTimeoutTest,
                         testing::Values(MonitorTimeoutCase{"Once", {"--once"}},
                                         MonitorTimeoutCase{"Scheduled", {"--count", "1"}}),
                         [](const testing::TestParamInfo<MonitorTimeoutCase>& testCase) {
                             return testCase.param.title;
                         });

// Starts `args` (after the program) in the background, sends `signal` once a process matching
// `marker` runs, and prints "exit=N" (the program's status), then "left-behind" when something
// matching `marker` still runs. The patterns are written "[s]leep ..." so that they do not find
// the shell that holds them.
std::string signalDuringCommand(const std::string& args, const std::string& marker, const std::string& signal)
{
    std::string pattern = "'[" + marker.substr(0, 1) + "]" + marker.substr(1) + "'";
    std::string script = "\"$0\" " + args +
                         " >/dev/null 2>&1 & pid=$!\n"
                         "i=0; while ! pgrep -f " +
                         pattern +
                         " >/dev/null && [ $i -lt 200 ]; do sleep 0.05; i=$((i+1)); done\n"
                         "kill -" +
                         signal +
                         " $pid\n"
                         "wait $pid; echo \"exit=$?\"\n"
                         "sleep 0.2; pgrep -f " +
                         pattern + " >/dev/null && echo left-behind; true\n";
    return script;
}

class CommandSignalTest : public testing::TestWithParam<const char*> {};

// A signal during a command ends its whole group, then the program, by that signal.
TEST_P(CommandSignalTest, LeavesNoShellBehind)
{
    testing_support::TempDir dir;
    std::string marker = std::string("sleep 31.416") + (std::string(GetParam()) == "TERM" ? "1" : "2");
    auto policy = dir.write("p.xml", policyWith(marker + "; echo 5")).string();
    auto result =
        runProgram({"sh", "-c", signalDuringCommand("run \"$1\" -q", marker, GetParam()), TVPOLICY_CLI, policy});
    int signal = std::string(GetParam()) == "TERM" ? 15 : 2;
    EXPECT_EQ(result.out, "exit=" + std::to_string(128 + signal) + "\n") << result.err;
}

INSTANTIATE_TEST_SUITE_P(Signals, CommandSignalTest, testing::Values("TERM", "INT"));

struct MonitorCommandSignalCase {
    std::string title;
    std::string mode;
    std::string signal;
    std::string marker;
    int exitCode;
};

class MonitorCommandSignalTest : public testing::TestWithParam<MonitorCommandSignalCase> {};

// --once ends by the signal, as run does; a scheduled monitor stops as asked (status 0) without
// reporting the run that the stop cut short. Either way the command's group is gone.
TEST_P(MonitorCommandSignalTest, LeavesNoShellBehind)
{
    testing_support::TempDir dir;
    auto file = dir.write("m.xml", "<m><Monitor id=\"m\" period=\"1\"><VersionFromScript script=\"" +
                                       GetParam().marker + "; echo 5\" required=\"1\"/></Monitor></m>")
                    .string();
    auto result = runProgram(
        {"sh", "-c", signalDuringCommand("monitor \"$1\" " + GetParam().mode, GetParam().marker, GetParam().signal),
         TVPOLICY_CLI, file});
    EXPECT_EQ(result.out, "exit=" + std::to_string(GetParam().exitCode) + "\n") << result.err;
}

INSTANTIATE_TEST_SUITE_P(
    Signals, MonitorCommandSignalTest,
    testing::Values(MonitorCommandSignalCase{"OnceTerm", "--once", "TERM", "sleep 31.4163", 128 + 15},
                    MonitorCommandSignalCase{"OnceInt", "--once", "INT", "sleep 31.4164", 128 + 2},
                    MonitorCommandSignalCase{"ScheduledTerm", "", "TERM", "sleep 31.4165", 0},
                    MonitorCommandSignalCase{"ScheduledInt", "--count 5", "INT", "sleep 31.4166", 0}),
    [](const testing::TestParamInfo<MonitorCommandSignalCase>& testCase) { return testCase.param.title; });

}  // namespace
