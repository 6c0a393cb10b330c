#include <tvpolicy/checks/FlushDNS.h>
#include <tvpolicy/checks/MacOSXVersionTask.h>
#include <tvpolicy/policy/TaskFactory.h>

#include <gtest/gtest.h>

#include <memory>

#include "checks/MacOSVersion.h"
#include "support/CaptureStream.h"
#include "support/PerformTask.h"
#include "support/RecordingHost.h"

namespace {

using testing_support::RecordingHost;
using tvpolicy::ScopedHost;

std::unique_ptr<TaskResponse> performWith(Task& task, const std::vector<Task::Attribute>& attributes)
{
    for (Task::Attribute attribute : attributes) {
        task.setAttribute(&attribute);
    }
    return std::unique_ptr<TaskResponse>(task.perform());
}

struct VersionCase {
    std::string osVersion;
    std::vector<Task::Attribute> attributes;
    bool passed;
};

class MacOSXVersionTaskTest : public testing::TestWithParam<VersionCase> {};

TEST_P(MacOSXVersionTaskTest, ComparesTheOSVersion)
{
    RecordingHost host;
    host.productVersion = GetParam().osVersion;
    ScopedHost scope(host);
    EXPECT_EQ(testing_support::performBareCheck("MacOSXVersionTask", GetParam().attributes), GetParam().passed);
}

std::vector<Task::Attribute> asks(std::string op, std::string major, std::string minor, std::string micro)
{
    return {{"major", major}, {"minor", minor}, {"micro", micro}, {"operation", op}};
}

INSTANTIATE_TEST_SUITE_P(
    Versions, MacOSXVersionTaskTest,
    testing::Values(
        // Two words are compared with ".0" behind them: "lt" 10.7.0 fails on 10.7.
        VersionCase{"10.6.8", asks("lt", "10", "7", "0"), true}, VersionCase{"10.7", asks("lt", "10", "7", "0"), false},
        VersionCase{"10.7\n", asks("lt", "10", "7", "0"), false},
        VersionCase{"10.7", asks("gte", "10", "7", "1"), false},
        // Three and four words are compared as they stand.
        VersionCase{"10.6.8.1", asks("gt", "10", "6", "8"), true},
        VersionCase{"10.6.8.1", asks("lt", "10", "6", "8"), false},
        // An unknown or missing operation means "gte".
        VersionCase{"10.6.8", asks("GT", "10", "6", "8"), true},
        VersionCase{"10.6.8", {{"major", "10"}, {"minor", "6"}, {"micro", "8"}}, true},
        // Missing attributes ask for "..", which has no words: the check fails.
        VersionCase{"10.6.8", {}, false},
        VersionCase{"10.6.8", {{"Major", "10"}, {"minor", "6"}, {"micro", "8"}, {"operation", "lt"}}, false},
        VersionCase{"", asks("gte", "10", "4", "0"), false},
        // Debian's one-word VERSION_ID.
        VersionCase{"12", asks("gte", "11", "0", "0"), true}, VersionCase{"12", asks("gte", "13", "0", "0"), false}));

TEST(MacOSXVersionTask, LogsTheVersionItReads)
{
    RecordingHost host;
    host.productVersion = "10.6.8\n";
    ScopedHost scope(host);
    MacOSXVersionTask task;
    testing_support::CaptureStream out(std::cout);
    performWith(task, asks("gte", "10", "6", "0"));
    auto messages = testing_support::logMessages(out.text());
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.front(), "Version = 10.6.8");
}

struct GateCase {
    std::string osVersion;
    std::string command;
};

class FlushDNSTaskTest : public testing::TestWithParam<GateCase> {};

// The macOS version picks the tool; the task issues it on a host whose flush command is the one
// that version gives, as the macOS backend has it.
TEST_P(FlushDNSTaskTest, IssuesTheToolOfTheVersion)
{
    EXPECT_EQ(tvpolicy::macOSDnsFlushCommand(GetParam().osVersion), GetParam().command);
    RecordingHost host;
    host.productVersion = GetParam().osVersion;
    host.flushCommand = tvpolicy::macOSDnsFlushCommand(host.productVersion);
    host.commandStatus = 127 << 8;  // a tool that is not there: the task passes all the same
    ScopedHost scope(host);
    std::unique_ptr<Task> task(TaskFactory::createTask("FlushDNSTask"));
    ASSERT_NE(task, nullptr);
    std::unique_ptr<TaskResponse> response = performWith(*task, {{"command", "rm -rf /"}});
    const bool issued = !GetParam().command.empty();
    EXPECT_EQ(response->passed, issued);
    EXPECT_EQ(task->passed(), issued);
    EXPECT_EQ(host.commandsRun, issued ? std::vector<std::string>{GetParam().command} : std::vector<std::string>{});
    EXPECT_EQ(response->code, -1);
    EXPECT_EQ(response->message, "");
    EXPECT_EQ(response->detail, "");
    EXPECT_EQ(task->getType(), "FlushDNS");
}

INSTANTIATE_TEST_SUITE_P(Versions, FlushDNSTaskTest,
                         testing::Values(GateCase{"10.6.8", "/usr/bin/dscacheutil -flushcache"},
                                         GateCase{"10.5", "/usr/bin/dscacheutil -flushcache"},
                                         GateCase{"11.2.3", "/usr/bin/dscacheutil -flushcache"},
                                         GateCase{"10.4.11", "/usr/bin/lookupd -flushcache"},
                                         GateCase{"10.4", "/usr/bin/lookupd -flushcache"}, GateCase{"10.3.9", ""},
                                         GateCase{"9.2", ""}, GateCase{"", ""}));

TEST(FlushDNS, ToolCommandsGiveTheirStatus)
{
    RecordingHost host;
    host.commandStatus = 256;
    ScopedHost scope(host);
    FlushDNS task;
    EXPECT_EQ(task.flushDNSdscacheutil(), 256);
    EXPECT_EQ(task.flushDNSlookupd(), 256);
    EXPECT_EQ(host.commandsRun,
              (std::vector<std::string>{"/usr/bin/dscacheutil -flushcache", "/usr/bin/lookupd -flushcache"}));
}

}  // namespace
