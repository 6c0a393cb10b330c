// The process table of this machine, read by the Linux backend: a child started from a copy of
// a binary under a name of our own is found by that name and by the short name the kernel
// keeps of it, and no longer once it has exited.
#include <tvpolicy/checks/ProcessList.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskFactory.h>

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <iostream>
#include <thread>
#include <memory>
#include <unistd.h>

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

TEST(ProcessListLive, FindsThisTestProgram)
{
    std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe");
    EXPECT_TRUE(ProcessList().isProcessRunning(self.filename().string()));
    EXPECT_TRUE(ProcessList().isProcessRunning(self.filename().string().substr(0, 15)));
}

}  // namespace
