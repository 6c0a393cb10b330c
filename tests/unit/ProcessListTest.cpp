#include <tvpolicy/checks/ProcessExistsTask.h>
#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/host/FakeHost.h>
#include <tvpolicy/policy/TaskFactory.h>

#include <gtest/gtest.h>

#include "support/CaptureStream.h"

#include <memory>

namespace {

using com::torvane::api::ProcessList;
using tvpolicy::FakeHost;
using tvpolicy::ScopedHost;
using Entry = tvpolicy::HostProbe::ProcessEntry;

// A table as a Linux host shows it to an unprivileged user: its own processes with their
// executables, others' (and kernel threads) without.
FakeHost describedHost()
{
    FakeHost host;
    host.processes = {
        {1, "systemd", std::nullopt},
        {2, "kthreadd", std::nullopt},
        {310, "sshd", std::nullopt},
        {4021, "bash", std::string("/usr/bin/bash")},
        {4100, "tvpolicy-agent-", std::string("/opt/tv/bin/tvpolicy-agent-daemon")},
        {4200, "renamed-worker", std::string("/usr/bin/python3.11")},
    };
    return host;
}

struct NameCase {
    std::string name;
    bool running;
};

class ProcessListNameTest : public testing::TestWithParam<NameCase> {};

TEST_P(ProcessListNameTest, MatchesWholeNamesOfReadableProcesses)
{
    FakeHost host = describedHost();
    ScopedHost scope(host);
    EXPECT_EQ(ProcessList().isProcessRunning(GetParam().name), GetParam().running) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(Names, ProcessListNameTest, testing::Values(
    NameCase{"bash", true},                           // base name and short name
    NameCase{"tvpolicy-agent-daemon", true},          // base name, longer than a short name
    NameCase{"tvpolicy-agent-", true},                // the short name the kernel cut
    NameCase{"python3.11", true},                     // executable of a renamed process
    NameCase{"renamed-worker", true},                 // the name it gave itself
    NameCase{"sshd", false},                          // executable unreadable: skipped entirely
    NameCase{"Bash", false},                          // case-sensitive
    NameCase{"bas", false},                           // no prefixes
    NameCase{"/usr/bin/bash", false},                 // a directory part never matches
    NameCase{"", false}));

TEST(ProcessList, ReadsTheTableAfreshOnEveryQuery)
{
    FakeHost host;
    ScopedHost scope(host);
    ProcessList list;
    EXPECT_FALSE(list.isProcessRunning("backupd"));
    host.processes.push_back({77, "backupd", std::string("/usr/sbin/backupd")});
    EXPECT_TRUE(list.isProcessRunning("backupd"));
    host.processes.clear();
    EXPECT_FALSE(list.isProcessRunning("backupd"));
}

TEST(ProcessList, DumpLogsShortNamesAndReadableExecutables)
{
    FakeHost host;
    host.processes = {{1, "systemd", std::nullopt}, {9, "tvpolicy-agent-", std::string("/opt/tv/tvpolicy-agent-daemon")}};
    ScopedHost scope(host);
    testing_support::CaptureStream log(std::clog);
    ProcessList().dump();
    std::vector<std::string> messages = testing_support::logMessages(log.text());
    EXPECT_NE(log.text().find(" UTC :: old: systemd\n"), std::string::npos) << "timestamped lines";
    EXPECT_EQ(messages, (std::vector<std::string>{"old: systemd", "old: tvpolicy-agent-", "new: tvpolicy-agent-daemon"}));
}

struct TaskCase {
    std::vector<Task::Attribute> attributes;
    bool passed;
};

class ProcessExistsTaskTest : public testing::TestWithParam<TaskCase> {};

TEST_P(ProcessExistsTaskTest, AnswersWithTheFixedTexts)
{
    FakeHost host = describedHost();
    ScopedHost scope(host);
    std::unique_ptr<Task> task(TaskFactory::createTask("ProcessExistsTask"));
    ASSERT_NE(task, nullptr);
    EXPECT_EQ(task->getType(), "ProcessExistsTask");
    for (Task::Attribute attribute : GetParam().attributes) {
        task->setAttribute(&attribute);
    }
    std::unique_ptr<TaskResponse> response(task->perform());
    EXPECT_EQ(response->passed, GetParam().passed);
    EXPECT_EQ(task->passed(), GetParam().passed);
    EXPECT_EQ(response->message, GetParam().passed ? "Process Running" : "Process Not Running");
    EXPECT_EQ(response->detail, "Task performed properly.");
    EXPECT_EQ(response->code, 0);
    EXPECT_FALSE(response->skip);
    EXPECT_EQ(response->failedResponse, nullptr);
}

INSTANTIATE_TEST_SUITE_P(Attributes, ProcessExistsTaskTest, testing::Values(
    TaskCase{{{"procName", "bash"}}, true},
    TaskCase{{{"procName", "sshd"}}, false},
    TaskCase{{}, false},                                           // no name: nothing has an empty name
    TaskCase{{{"procname", "bash"}}, false},                       // attribute names are exact
    TaskCase{{{"procName", "sshd"}, {"procName", "bash"}}, true}));  // the last one wins

}  // namespace
