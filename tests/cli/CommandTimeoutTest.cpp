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

class CommandSignalTest : public testing::TestWithParam<const char*> {};

// A signal during a command ends its whole group, then the program, by that signal. The patterns
// are written "[s]leep ..." so that they do not find the shell that holds them.
TEST_P(CommandSignalTest, LeavesNoShellBehind)
{
    testing_support::TempDir dir;
    std::string marker = std::string("sleep 31.416") + (std::string(GetParam()) == "TERM" ? "1" : "2");
    auto policy = dir.write("p.xml", policyWith(marker + "; echo 5")).string();
    std::string script =
        "\"$0\" run \"$1\" -q >/dev/null 2>&1 & pid=$!\n"
        "i=0; while ! pgrep -f '[" +
        marker.substr(0, 1) + "]" + marker.substr(1) +
        "' >/dev/null && [ $i -lt 200 ]; do sleep 0.05; i=$((i+1)); done\n"
        "kill -" +
        GetParam() +
        " $pid\n"
        "wait $pid; echo \"exit=$?\"\n"
        "sleep 0.2; pgrep -f '[" +
        marker.substr(0, 1) + "]" + marker.substr(1) + "' >/dev/null && echo left-behind; true\n";
    auto result = runProgram({"sh", "-c", script, TVPOLICY_CLI, policy});
    int signal = std::string(GetParam()) == "TERM" ? 15 : 2;
    EXPECT_EQ(result.out, "exit=" + std::to_string(128 + signal) + "\n") << result.err;
}

INSTANTIATE_TEST_SUITE_P(Signals, CommandSignalTest, testing::Values("TERM", "INT"));

}  // namespace
