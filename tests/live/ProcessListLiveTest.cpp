// The process table of this machine, read by the Linux backend: a child started from a copy of
// a binary under a name of our own is found by that name and by the short name the kernel
// keeps of it, and no longer once it has exited.
#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskFactory.h>

#include <gtest/gtest.h>

#include <unistd.h>
#include <algorithm>
#include <atomic>
#include <filesystem>
#include <iostream>
#include <memory>
#include <thread>

#include "support/CaptureStream.h"
#include "support/ChildProcess.h"
#include "support/TempDir.h"

namespace {

using com::torvane::api::ProcessList;
using testing_support::ChildProcess;

class ProcessListLiveTest : public testing::Test {
protected:
    void SetUp() override
    {
        // The kernel keeps 15 characters of a name, and the tests run side by side in
        // processes of their own: what tells one test's sleeper from another's comes first.
        static int started = 0;
        name = "p" + std::to_string(::getpid()) + "-" + std::to_string(started++) + "-tvpolicy-live-sleeper";
        ASSERT_GT(name.size(), 15u);
        path = dir.path() / name;
        std::filesystem::copy_file("/bin/sleep", path);
        std::filesystem::permissions(path, std::filesystem::perms::owner_all);
    }

    bool running(const std::string& query) { return ProcessList().isProcessRunning(query); }

    testing_support::TempDir dir;
    std::string name;
    std::filesystem::path path;
};

TEST_F(ProcessListLiveTest, FindsAChildByExecutableNameAndShortName)
{
    ChildProcess child({path.string(), "300"});
    EXPECT_TRUE(running(name));
    EXPECT_TRUE(running(name.substr(0, 15))) << "the kernel keeps 15 characters of the name";
    EXPECT_FALSE(running(name.substr(0, 14)));
    EXPECT_FALSE(running(name.substr(0, 16)));
    EXPECT_FALSE(running(path.string())) << "a name with a directory part never matches";
    EXPECT_FALSE(running("./" + name));
    EXPECT_FALSE(running(path.parent_path().filename().string() + "/" + name));
}

TEST_F(ProcessListLiveTest, AnExitedChildIsNotFound)
{
    ChildProcess child({path.string(), "300"});
    ASSERT_TRUE(running(name));
    child.killAndLeaveZombie();
    EXPECT_FALSE(running(name)) << "a zombie has no executable and is passed over";
    EXPECT_FALSE(running(name.substr(0, 15)));
    child.stop();
    EXPECT_FALSE(running(name));
    EXPECT_FALSE(running(name.substr(0, 15)));
}

TEST_F(ProcessListLiveTest, ProcessExistsTaskSeesTheChild)
{
    ChildProcess child({path.string(), "300"});
    std::unique_ptr<Task> task(TaskFactory::createTask("ProcessExistsTask"));
    Task::Attribute procName{"procName", name};
    task->setAttribute(&procName);
    std::unique_ptr<TaskResponse> present(task->perform());
    EXPECT_TRUE(present->passed);
    EXPECT_EQ(present->message, "Process Running");
    child.stop();
    std::unique_ptr<TaskResponse> gone(task->perform());
    EXPECT_FALSE(gone->passed);
    EXPECT_EQ(gone->message, "Process Not Running");
}

// Processes that start and end while the table is read are passed over; the scan goes on.
TEST_F(ProcessListLiveTest, ProcessesEndingMidScanAreNoError)
{
    ChildProcess child({path.string(), "300"});
    std::atomic<bool> done{false};
    std::thread churn([&] {
        while (!done) {
            ChildProcess brief({"true"});
        }
    });
    int found = 0;
    for (int i = 0; i < 100; ++i) {
        found += running(name) && !running("tvp-no-such-prc") ? 1 : 0;
    }
    done = true;
    churn.join();
    EXPECT_EQ(found, 100);
}

TEST_F(ProcessListLiveTest, DumpShowsBothNamesOfTheChild)
{
    ChildProcess child({path.string(), "300"});
    testing_support::CaptureStream log(std::clog);
    ProcessList().dump();
    std::string text = log.text();
    EXPECT_NE(text.find(" UTC :: old: " + name.substr(0, 15) + "\n"), std::string::npos);
    EXPECT_NE(text.find(" UTC :: new: " + name + "\n"), std::string::npos);
}

// The Linux backend reads each process's executable link first and its short name only where
// that can still decide; it answers as the rule over the whole table does, also for a process
// started through a symbolic link (short name and executable differ) and for one whose
// executable was deleted.
TEST_F(ProcessListLiveTest, NamedSearchAnswersAsTheWholeTable)
{
    std::string linkName = "l" + std::to_string(::getpid()) + "-tvp-link-to-sleeper";
    std::filesystem::path link = dir.path() / linkName;
    std::filesystem::create_symlink(path, link);
    std::filesystem::path doomed = dir.path() / ("d" + name);
    std::filesystem::copy_file(path, doomed);
    ChildProcess throughLink({link.string(), "300"});
    ChildProcess deleted({doomed.string(), "300"});
    std::filesystem::remove(doomed);
    struct Case {
        std::string query;
        bool running;
    };
    const Case cases[] = {
        {name, true},                    // the executable's file name, behind the link
        {linkName.substr(0, 15), true},  // the short name, taken from the link
        {linkName, false},               // neither: the link is not the executable
        {"d" + name, true},              // a deleted executable still has its name
        {("d" + name).substr(0, 15), true},
        {"tvp-no-such-prc", false},
        {"", false},
    };
    const tvpolicy::HostProbe& host = tvpolicy::currentHost();
    auto table = host.processTable();
    for (const Case& c : cases) {
        EXPECT_EQ(host.runsProcessNamed(c.query), c.running) << c.query;
        bool inTable = std::any_of(table.begin(), table.end(), [&](const auto& p) {
            return p.executablePath &&
                   (p.shortName == c.query || std::filesystem::path(*p.executablePath).filename() == c.query);
        });
        EXPECT_EQ(inTable, c.running) << "the whole table, " << c.query;
    }
}

// The counts read from the executable links alone agree with the whole table.
TEST(ProcessListLive, CountsAgreeWithTheTable)
{
    const tvpolicy::HostProbe& host = tvpolicy::currentHost();
    auto counts = host.processCounts();
    auto table = host.processTable();
    auto withheld = std::count_if(table.begin(), table.end(), [](const auto& p) { return p.executableWithheld; });
    EXPECT_EQ(counts.withheld, static_cast<std::size_t>(withheld));
    // Other programs start and end between the two readings.
    EXPECT_NEAR(static_cast<double>(counts.total), static_cast<double>(table.size()), 0.1 * table.size() + 5);
    EXPECT_GT(counts.total, 1u);
}

TEST(ProcessListLive, FindsThisTestProgram)
{
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_TRUE(ProcessList().isProcessRunning(self.filename().string()));
    EXPECT_TRUE(ProcessList().isProcessRunning(self.filename().string().substr(0, 15)));
}

}  // namespace
