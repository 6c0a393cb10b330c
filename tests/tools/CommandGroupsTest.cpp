// Commands of checks in process groups of their own: what they print and their status, and an
// end that takes each whole group with it, whatever it ignores or leaves running.

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <pthread.h>
#include <sys/wait.h>
#include <unistd.h>

#include "process/CommandGroups.h"
#include "support/ProcessWatch.h"

namespace {

using tvpolicy::cli::CommandGroups;
using namespace std::chrono_literals;

// A folder of the test's own under the system's temporary folder, removed at the end.
class Scratch {
public:
    Scratch()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "command-groups-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data()) != nullptr ? pattern : std::string();
    }
    ~Scratch() { std::filesystem::remove_all(path_); }
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }

private:
    std::filesystem::path path_;
};

struct OutputCase {
    const char* what;
    std::string command;
    std::size_t keep;
    std::string output;
};

class CommandOutput : public testing::TestWithParam<OutputCase> {};

TEST_P(CommandOutput, IsReadWhole)
{
    // Called with the agent's signals blocked, as a background call is: the command must not
    // inherit the mask.
    sigset_t handled;
    sigemptyset(&handled);
    sigaddset(&handled, SIGTERM);
    sigaddset(&handled, SIGINT);
    sigset_t saved;
    ::pthread_sigmask(SIG_BLOCK, &handled, &saved);
    CommandGroups commands;
    std::optional<std::string> output = commands.output(GetParam().command, GetParam().keep);
    ::pthread_sigmask(SIG_SETMASK, &saved, nullptr);
    ASSERT_TRUE(output.has_value()) << GetParam().what;
    EXPECT_EQ(*output, GetParam().output) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CommandOutput,
    testing::Values(OutputCase{"lines and a last one without a newline", "printf 'a\\nb\\nc'", 1024, "a\nb\nc"},
                    OutputCase{"nothing printed", "true", 1024, ""},
                    OutputCase{"output of a child that outlives the shell's own printing",
                               "echo one; (sleep 0.2; echo two)", 1024, "one\ntwo\n"},
                    OutputCase{"more than is kept: the rest is read and dropped", "seq 1 100000", 6, "1\n2\n3\n"},
                    OutputCase{"standard input is empty, so a reader does not wait", "cat; echo done", 1024, "done\n"},
                    OutputCase{"the shell leads a process group of its own",
                               "set -- $(cat /proc/$$/stat); [ \"$1\" = \"$5\" ] && echo own", 1024, "own\n"},
                    OutputCase{"no signal is blocked in the command", "grep SigBlk /proc/$$/status", 1024,
                               "SigBlk:\t0000000000000000\n"}));

TEST(CommandStatus, IsTheWaitStatus)
{
    CommandGroups commands;
    std::optional<int> exited = commands.status("echo not read; exit 3");
    ASSERT_TRUE(exited.has_value());
    ASSERT_TRUE(WIFEXITED(*exited));
    EXPECT_EQ(WEXITSTATUS(*exited), 3);
    std::optional<int> killed = commands.status("kill -KILL $$");
    ASSERT_TRUE(killed.has_value());
    ASSERT_TRUE(WIFSIGNALED(*killed));
    EXPECT_EQ(WTERMSIG(*killed), SIGKILL);
}

struct EndCase {
    const char* what;
    // Starts something that does not end by itself, then writes the shell's id and the ids of
    // what it started to $F, a line.
    std::string command;
    bool readsOutput;
};

class CommandEnd : public testing::TestWithParam<EndCase> {};

TEST_P(CommandEnd, TakesTheWholeGroupWithinTheGrace)
{
    Scratch scratch;
    const std::string pids = scratch.file("pids");
    const std::string command = "F='" + pids + "'; " + GetParam().command;
    CommandGroups commands(200ms);
    auto call = std::async(std::launch::async, [&] {
        return GetParam().readsOutput ? commands.output(command).has_value() : commands.status(command).has_value();
    });
    std::vector<pid_t> started = testing_support::waitForPidLine(pids, 5s);
    ASSERT_FALSE(started.empty()) << GetParam().what << ": the command did not start";
    const auto ending = std::chrono::steady_clock::now();
    commands.end();
    ASSERT_EQ(call.wait_for(2s), std::future_status::ready) << GetParam().what;
    EXPECT_LT(std::chrono::steady_clock::now() - ending, 600ms) << GetParam().what;
    EXPECT_FALSE(call.get()) << GetParam().what << ": an ended command has no result";
    std::this_thread::sleep_for(50ms);  // KILL is sent before the shell is reaped; let it land
    for (pid_t pid : started) {
        EXPECT_FALSE(testing_support::processRunning(pid))
            << GetParam().what << ": process " << pid << " was left running";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, CommandEnd,
    testing::Values(EndCase{"a shell waiting for its child", "sleep 30 & echo $$ $! > \"$F\"; wait", true},
                    EndCase{"the same without reading output", "sleep 30 & echo $$ $! > \"$F\"; wait", false},
                    EndCase{"a shell and a child that ignore TERM",
                            "trap '' TERM; sleep 30 & echo $$ $! > \"$F\"; wait", true},
                    EndCase{"a child that holds the output after the shell exited",
                            "(trap '' TERM; sleep 30) & echo $$ $! > \"$F\"", true},
                    EndCase{"a command that closed its output and keeps running",
                            "exec >/dev/null; sleep 30 & echo $$ $! > \"$F\"; wait", true}));

TEST(CommandEnd, NothingStartsOnceEnded)
{
    Scratch scratch;
    CommandGroups commands;
    commands.end();
    const auto asked = std::chrono::steady_clock::now();
    EXPECT_FALSE(commands.output("touch '" + scratch.file("ran") + "'").has_value());
    EXPECT_FALSE(commands.status("touch '" + scratch.file("ran") + "'").has_value());
    EXPECT_LT(std::chrono::steady_clock::now() - asked, 100ms);
    EXPECT_FALSE(std::filesystem::exists(scratch.file("ran")));
}

}  // namespace
