// The Linux backend against this machine, and against folders laid out like a system's root
// (for the files this machine lacks or cannot vary: DMI, a missing /etc/os-release, processes
// of other users and of resolvers).
#include "host/probe/linux/LinuxHostProbe.h"

#include <tvpolicy/checks/FlushDNS.h>
#include <tvpolicy/host/Machine.h>
#include <tvpolicy/policy/Task.h>
#include <tvpolicy/policy/TaskFactory.h>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <thread>

#include "support/ChildProcess.h"
#include "support/RunCli.h"
#include "support/TempDir.h"

namespace {

using tvpolicy::LinuxHostProbe;
using Entry = tvpolicy::HostProbe::ProcessEntry;
using testing_support::runProgram;
using testing_support::TempDir;

std::string shellOutput(const std::string& script)
{
    auto result = runProgram({"sh", "-c", script});
    EXPECT_EQ(result.exitCode, 0) << script << ": " << result.err;
    return result.out;
}

TEST(LinuxHostProbeLive, OsReleaseReadsAsTheShellReadsIt)
{
    LinuxHostProbe probe;
    const char* source = "f=/etc/os-release; [ -r $f ] || f=/usr/lib/os-release; . $f; ";
    EXPECT_EQ(probe.osProductVersion(), shellOutput(std::string(source) + "printf %s \"$VERSION_ID\""));
    EXPECT_EQ(probe.osProductName(), shellOutput(std::string(source) + "printf %s \"$NAME\""));
}

TEST(LinuxHostProbeLive, UnameFacts)
{
    LinuxHostProbe probe;
    EXPECT_EQ(probe.nodeName() + "\n", shellOutput("uname -n"));
    EXPECT_EQ(probe.machineArchitecture() + "\n", shellOutput("uname -m"));
    EXPECT_EQ(Machine::getHostName() + "\n", shellOutput("uname -n | cut -d. -f1"));
}

TEST(LinuxHostProbeLive, HardwareIdentityIsWhatDmiShows)
{
    LinuxHostProbe probe;
    auto identity = probe.hardwareIdentity();
    const std::pair<const char*, std::optional<std::string>*> fields[] = {{"sys_vendor", &identity.manufacturer},
                                                                          {"product_name", &identity.productName},
                                                                          {"product_version", &identity.version},
                                                                          {"product_uuid", &identity.uuid},
                                                                          {"product_serial", &identity.serialNumber}};
    for (const auto& [file, value] : fields) {
        auto result = runProgram({"sh", "-c", std::string("cat /sys/class/dmi/id/") + file + " 2>/dev/null"});
        EXPECT_EQ(value->has_value(), result.exitCode == 0) << file;
        if (*value) {
            EXPECT_EQ(**value + "\n", result.out) << file;
        }
    }
}

TEST(LinuxHostProbeLive, ShellCommandGivesItsWaitStatus)
{
    LinuxHostProbe probe;
    int status = probe.runShellCommand("echo not read; exit 3");
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 3);
    status = probe.runShellCommand("/nonexistent/dscacheutil -flushcache 2>/dev/null");
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 127);
}

// Puts `dir` first in PATH for the object's lifetime.
class PathPrefix {
public:
    explicit PathPrefix(const std::filesystem::path& dir) : saved_(std::getenv("PATH") ? std::getenv("PATH") : "")
    {
        ::setenv("PATH", (dir.string() + ":" + saved_).c_str(), 1);
    }
    ~PathPrefix() { ::setenv("PATH", saved_.c_str(), 1); }

private:
    std::string saved_;
};

TEST(LinuxHostProbeLive, OpenURLHandsTheURLToXdgOpenAsOneArgument)
{
    TempDir dir;
    auto received = dir.path() / "received";
    auto opener = dir.write("bin/xdg-open", "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > '" + received.string() +
                                                ".part'\n"
                                                "mv '" +
                                                received.string() + ".part' '" + received.string() + "'\n");
    std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
    PathPrefix path(opener.parent_path());

    const std::string url = "https://nac.example/login?a=1&b=it's;touch " + (dir.path() / "pwned").string() + " $(id)";
    LinuxHostProbe probe;
    probe.openURL(url);
    // xdg-open runs in the background; give it time to answer.
    for (int i = 0; i < 500 && !std::filesystem::exists(received); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_EQ(testing_support::readFile(received), "1|" + url);
    EXPECT_FALSE(std::filesystem::exists(dir.path() / "pwned"));
}

// The real backend finds the resolver among the running processes and issues its flush
// command; the tools are stand-ins that record how they were called.
TEST(FlushDNSLive, IssuesTheFlushOfTheRunningResolver)
{
    TempDir dir;
    auto issued = dir.path() / "issued";
    for (const char* tool : {"bin/nscd", "bin/resolvectl"}) {
        auto script = dir.write(tool, "#!/bin/sh\necho \"$(basename \"$0\") $*\" >> '" + issued.string() + "'\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    }
    PathPrefix path(dir.path() / "bin");
    std::unique_ptr<Task> task(TaskFactory::createTask("FlushDNSTask"));

    const std::string resolver = tvpolicy::systemHost().dnsFlushCommand();
    if (!resolver.empty()) {
        EXPECT_TRUE(std::unique_ptr<TaskResponse>(task->perform())->passed);
        EXPECT_EQ(testing_support::readFile(issued), resolver + "\n");
        GTEST_SKIP() << "this machine runs a caching resolver already (" << resolver << ")";
    }
    EXPECT_FALSE(std::unique_ptr<TaskResponse>(task->perform())->passed) << "no resolver cache runs";
    EXPECT_FALSE(std::filesystem::exists(issued));

    std::filesystem::create_directories(dir.path() / "daemon");
    std::filesystem::copy_file("/bin/sleep", dir.path() / "daemon/nscd");
    std::filesystem::permissions(dir.path() / "daemon/nscd", std::filesystem::perms::owner_all);
    testing_support::ChildProcess nscd({(dir.path() / "daemon/nscd").string(), "300"});
    EXPECT_TRUE(std::unique_ptr<TaskResponse>(task->perform())->passed);
    EXPECT_EQ(testing_support::readFile(issued), "nscd -i hosts\n");
}

// A folder laid out like the root of a Linux system.
class CraftedRootTest : public testing::Test {
protected:
    void process(const std::string& pid, const std::string& comm, const std::string& exeTarget)
    {
        root.write("proc/" + pid + "/comm", comm);
        if (!exeTarget.empty()) {
            std::filesystem::create_symlink(exeTarget, root.path() / "proc" / pid / "exe");
        }
    }

    std::vector<Entry> sortedTable()
    {
        auto table = LinuxHostProbe(root.path().string()).processTable();
        std::sort(table.begin(), table.end(), [](const Entry& a, const Entry& b) { return a.pid < b.pid; });
        return table;
    }

    TempDir root;
};

TEST_F(CraftedRootTest, ProcessTableTakesPidFoldersOnly)
{
    process("1", "systemd\n", "");
    process("42", "tvpolicy-live-s\n", "/opt/x/tvpolicy-live-sleeper");
    process("43", "agentd\n", "/opt/agent/agentd (deleted)");
    process("44", "odd name\n\n", "/usr/bin/odd");
    std::filesystem::create_directories(root.path() / "proc/45");  // ended: no comm left
    std::filesystem::create_directories(root.path() / "proc/sys");
    root.write("proc/uptime", "1.0 1.0\n");
    std::filesystem::create_symlink("42", root.path() / "proc/self");

    auto table = sortedTable();
    ASSERT_EQ(table.size(), 4u);
    EXPECT_EQ(table[0].pid, 1);
    EXPECT_EQ(table[0].shortName, "systemd");
    EXPECT_FALSE(table[0].executablePath.has_value());
    EXPECT_EQ(table[1].pid, 42);
    EXPECT_EQ(table[1].shortName, "tvpolicy-live-s");
    EXPECT_EQ(table[1].executablePath, std::optional<std::string>("/opt/x/tvpolicy-live-sleeper"));
    EXPECT_EQ(table[2].executablePath, std::optional<std::string>("/opt/agent/agentd"));
    EXPECT_EQ(table[3].shortName, "odd name\n");
}

TEST_F(CraftedRootTest, NoProcFolderGivesAnEmptyTable)
{
    EXPECT_TRUE(LinuxHostProbe(root.path().string()).processTable().empty());
}

struct FlushCase {
    std::vector<std::string> running;
    std::string command;
};

class CraftedFlushTest : public CraftedRootTest, public testing::WithParamInterface<FlushCase> {};

TEST_P(CraftedFlushTest, FlushesTheResolverThatRuns)
{
    int pid = 100;
    for (const std::string& comm : GetParam().running) {
        process(std::to_string(pid++), comm + "\n", "");  // root's daemons: no executable path
    }
    EXPECT_EQ(LinuxHostProbe(root.path().string()).dnsFlushCommand(), GetParam().command);
}

INSTANTIATE_TEST_SUITE_P(Resolvers, CraftedFlushTest,
                         testing::Values(FlushCase{{"systemd", "sshd"}, ""},
                                         FlushCase{{"systemd", "nscd"}, "nscd -i hosts"},
                                         FlushCase{{"systemd-resolve"}, "resolvectl flush-caches"},
                                         FlushCase{{"nscd", "systemd-resolve"}, "resolvectl flush-caches"},
                                         FlushCase{{"systemd-resolved"}, ""}, FlushCase{{"nscd-helper"}, ""}));

TEST_F(CraftedRootTest, OsReleaseFallsBackToUsrLib)
{
    LinuxHostProbe probe(root.path().string());
    EXPECT_EQ(probe.osProductVersion(), "");
    EXPECT_EQ(probe.osProductName(), "");
    root.write("usr/lib/os-release", "NAME=\"Fedora Linux\"\nVERSION_ID=39\n");
    EXPECT_EQ(probe.osProductVersion(), "39");
    EXPECT_EQ(probe.osProductName(), "Fedora Linux");
    root.write("etc/os-release", "NAME='Alpine Linux'\nVERSION_ID=3.19.1\n");
    EXPECT_EQ(probe.osProductVersion(), "3.19.1");
    EXPECT_EQ(probe.osProductName(), "Alpine Linux");

    std::filesystem::remove(root.path() / "etc/os-release");
    ASSERT_EQ(::mkfifo((root.path() / "etc/os-release").c_str(), 0600), 0);
    EXPECT_EQ(probe.osProductVersion(), "") << "a FIFO without a writer is read as empty, not waited on";
}

TEST_F(CraftedRootTest, HardwareIdentityFromDmiFiles)
{
    LinuxHostProbe probe(root.path().string());
    EXPECT_EQ(probe.hardwareIdentity().manufacturer, std::nullopt);
    root.write("sys/class/dmi/id/sys_vendor", "LENOVO\n");
    root.write("sys/class/dmi/id/product_name", "20KH006EGE   \n");
    root.write("sys/class/dmi/id/product_uuid", "4c4c4544-0042-3510-8052-b4c04f4b4e32\n");
    root.write("sys/class/dmi/id/product_serial", "\n");
    auto identity = probe.hardwareIdentity();
    EXPECT_EQ(identity.manufacturer, std::optional<std::string>("LENOVO"));
    EXPECT_EQ(identity.productName, std::optional<std::string>("20KH006EGE"));
    EXPECT_EQ(identity.version, std::nullopt);
    EXPECT_EQ(identity.uuid, std::optional<std::string>("4c4c4544-0042-3510-8052-b4c04f4b4e32"));
    EXPECT_EQ(identity.serialNumber, std::optional<std::string>(""));
}

}  // namespace
