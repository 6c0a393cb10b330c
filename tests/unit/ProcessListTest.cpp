#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/host/DescribedHostProbe.h>

#include <gtest/gtest.h>

#include "support/CaptureStream.h"
#include "support/PerformTask.h"

namespace {

using com::torvane::api::ProcessList;
using tvpolicy::DescribedHostProbe;
using tvpolicy::ScopedHost;
using Entry = tvpolicy::HostProbe::ProcessEntry;

// A table as a Linux host shows it to an unprivileged user: its own processes with their
// executables, others' (and kernel threads) without.
DescribedHostProbe describedHost()
{
    DescribedHostProbe host;
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

TEST(ProcessList, MatchesWholeNamesOfReadableProcesses)
{
    DescribedHostProbe host = describedHost();
    ScopedHost scope(host);
    const std::vector<std::pair<std::string, bool>> cases = {
        {"bash", true},                   // base name and short name
        {"tvpolicy-agent-daemon", true},  // base name, longer than a short name
        {"tvpolicy-agent-", true},        // the short name the kernel cut
        {"python3.11", true},             // executable of a renamed process
        {"renamed-worker", true},         // the name it gave itself
        {"sshd", false},                  // executable unreadable: skipped entirely
        {"Bash", false},                  // case-sensitive
        {"bas", false},                   // no prefixes
        {"/usr/bin/bash", false},         // a directory part never matches
        {"", false}};
    for (const auto& [name, running] : cases) {
        EXPECT_EQ(ProcessList().isProcessRunning(name), running) << name;
    }
}

TEST(ProcessList, ReadsTheTableAfreshOnEveryQuery)
{
    DescribedHostProbe host;
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
    DescribedHostProbe host;
    host.processes = {{1, "systemd", std::nullopt},
                      {9, "tvpolicy-agent-", std::string("/opt/tv/tvpolicy-agent-daemon")}};
    ScopedHost scope(host);
    testing_support::CaptureStream log(std::clog);
    ProcessList().dump();
    std::vector<std::string> messages = testing_support::logMessages(log.text());
    EXPECT_NE(log.text().find(" UTC :: old: systemd\n"), std::string::npos) << "timestamped lines";
    EXPECT_EQ(messages,
              (std::vector<std::string>{"old: systemd", "old: tvpolicy-agent-", "new: tvpolicy-agent-daemon"}));
}

struct TaskCase {
    std::vector<Task::Attribute> attributes;
    bool passed;
};

class ProcessExistsTaskTest : public testing::TestWithParam<TaskCase> {};

TEST_P(ProcessExistsTaskTest, AnswersWithTheFixedTexts)
{
    DescribedHostProbe host = describedHost();
    ScopedHost scope(host);
    auto run = testing_support::performTask("ProcessExistsTask", GetParam().attributes);
    EXPECT_EQ(run.response->passed, GetParam().passed);
    EXPECT_EQ(run.response->message, GetParam().passed ? "Process Running" : "Process Not Running");
    EXPECT_EQ(run.response->detail, "Task performed properly.");
    EXPECT_EQ(run.response->code, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Attributes, ProcessExistsTaskTest,
    testing::Values(TaskCase{{{"procName", "bash"}}, true}, TaskCase{{{"procName", "sshd"}}, false},
                    TaskCase{{}, false},                      // no name: nothing has an empty name
                    TaskCase{{{"procname", "bash"}}, false},  // attribute names are exact
                    TaskCase{{{"procName", "sshd"}, {"procName", "bash"}}, true}));  // the last one wins

}  // namespace
