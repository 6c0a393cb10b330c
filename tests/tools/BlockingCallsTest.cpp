// Calls that nothing interrupts, run on a thread of their own: their result when no stop comes,
// nothing when one does, and the program ended through `abandon` when the call cannot be waited
// for any longer.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>

#include <unistd.h>

#include "agent/AgentRuntime.h"
#include "agent/BlockingCalls.h"
#include "process/CommandGroups.h"

namespace {

using tvpolicy::cli::CommandGroups;
using tvpolicy::cli::agent::AgentSignals;
using tvpolicy::cli::agent::BlockingCalls;
using tvpolicy::cli::agent::Wake;
using namespace std::chrono_literals;

// SIGTERM to the whole process after `delay`, as a service manager sends it.
class TermLater {
public:
    explicit TermLater(std::chrono::milliseconds delay)
        : thread_([delay] {
              std::this_thread::sleep_for(delay);
              ::kill(::getpid(), SIGTERM);
          })
    {
    }
    ~TermLater() { thread_.join(); }
    TermLater(const TermLater&) = delete;
    TermLater& operator=(const TermLater&) = delete;

private:
    std::thread thread_;
};

struct CallCase {
    const char* what;
    std::function<int(CommandGroups&)> work;
    std::optional<std::chrono::milliseconds> termAfter;  // from the start of the call; 0: before it
    std::optional<int> result;
    bool workRuns;
};

class BlockingCall : public testing::TestWithParam<CallCase> {};

TEST_P(BlockingCall, GivesTheResultOrNothingAfterAStop)
{
    AgentSignals signals;
    CommandGroups commands;
    bool abandoned = false;
    BlockingCalls calls(
        signals, commands, [&abandoned](const std::string&) { abandoned = true; }, 500ms);
    std::optional<TermLater> term;
    if (GetParam().termAfter && GetParam().termAfter->count() == 0) {
        ::kill(::getpid(), SIGTERM);
    } else if (GetParam().termAfter) {
        term.emplace(*GetParam().termAfter);
    }
    std::atomic<bool> ran{false};
    const auto started = std::chrono::steady_clock::now();
    std::optional<int> result = calls.run("the call", [&] {
        ran = true;
        return GetParam().work(commands);
    });
    EXPECT_EQ(result, GetParam().result) << GetParam().what;
    EXPECT_EQ(ran.load(), GetParam().workRuns) << GetParam().what;
    EXPECT_FALSE(abandoned) << GetParam().what;
    EXPECT_LT(std::chrono::steady_clock::now() - started, 1s) << GetParam().what;
}

INSTANTIATE_TEST_SUITE_P(
    Calls, BlockingCall,
    testing::Values(CallCase{"no stop: the call's result", [](CommandGroups&) { return 42; }, std::nullopt, 42, true},
                    CallCase{
                        "a command's output, read on the call's thread",
                        [](CommandGroups& commands) { return std::stoi(commands.output("echo 7").value_or("-1")); },
                        std::nullopt, 7, true},
                    CallCase{"a stop before the call: it does not start", [](CommandGroups&) { return 42; }, 0ms,
                             std::nullopt, false},
                    CallCase{"a stop while its command runs: the command is ended and the call returns in time",
                             [](CommandGroups& commands) { return commands.output("sleep 30; echo 7") ? 7 : -1; },
                             200ms, std::nullopt, true}));

TEST(BlockingCall, AnExceptionOfTheCallIsThrownToTheCaller)
{
    AgentSignals signals;
    CommandGroups commands;
    BlockingCalls calls(signals, commands, [](const std::string&) {});
    EXPECT_THROW(calls.run("the call", []() -> int { throw std::runtime_error("no"); }), std::runtime_error);
}

TEST(BlockingCall, AReloadOrAnEventDuringTheCallIsKeptForTheNextWait)
{
    AgentSignals signals;
    CommandGroups commands;
    BlockingCalls calls(signals, commands, [](const std::string&) {});
    std::optional<int> result = calls.run("the call", [&signals] {
        ::kill(::getpid(), SIGHUP);
        signals.notify();
        std::this_thread::sleep_for(100ms);
        return 1;
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(signals.wait(0ms), Wake::reload);
    EXPECT_EQ(signals.wait(0ms), Wake::event);
    EXPECT_EQ(signals.wait(0ms), Wake::timeout);
}

// A call that nothing ends (a DNS query waiting for a silent server) is left to the exit: the
// program ends through `abandon`, told what was under way, soon after the stop.
TEST(BlockingCallDeathTest, ACallThatDoesNotReturnIsAbandoned)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    auto stuck = [] {
        AgentSignals signals;
        CommandGroups commands;
        const auto started = std::chrono::steady_clock::now();
        BlockingCalls calls(
            signals, commands,
            [started](const std::string& what) {
                auto waited = std::chrono::steady_clock::now() - started;
                std::fprintf(stderr, "abandoned %s%s\n", what.c_str(), waited < 900ms ? " in time" : " late");
                ::_exit(7);
            },
            300ms);
        // Detached: the program ends inside run(), where nothing could join it.
        std::thread([] {
            std::this_thread::sleep_for(200ms);
            ::kill(::getpid(), SIGTERM);
        }).detach();
        calls.run("the lookup", [] {
            std::this_thread::sleep_for(30s);
            return 0;
        });
    };
    EXPECT_EXIT(stuck(), testing::ExitedWithCode(7), "abandoned the lookup in time");
}

}  // namespace
