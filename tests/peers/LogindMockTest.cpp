// The power notifier and `tvpolicy watch --power` against systemd-logind as python3-dbusmock's
// template plays it, on a private system-like bus: PrepareForSleep signals, and the delay
// inhibitor that the notifier holds and releases as its acknowledgement.
#include <tvpolicy/host/PowerChangeNotifier.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <csignal>
#include <future>
#include <mutex>
#include <thread>

#include <nlohmann/json.hpp>

#include "support/CaptureStream.h"
#include "support/PrivateBus.h"

namespace {

using Json = nlohmann::json;

const char* const login1 = "org.freedesktop.login1";
const char* const login1Path = "/org/freedesktop/login1";
const char* const manager = "org.freedesktop.login1.Manager";

class MockedLogind : public testing_support::PrivateBusTest {
protected:
    void startLogind()
    {
        ASSERT_TRUE(bus.startMock("logind", {login1, login1Path, manager, "ListInhibitors"}))
            << "the logind mock did not come up";
    }

    Json inhibitors() { return bus.call({login1, login1Path, manager, "ListInhibitors"})["data"][0]; }

    // Polls until logind holds `count` inhibitors (at most five seconds).
    bool inhibitorsBecome(std::size_t count)
    {
        for (int i = 0; i < 100; ++i) {
            if (inhibitors().size() == count) {
                return true;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return false;
    }

    void prepareForSleep(bool sleeping)
    {
        bus.call({login1, login1Path, "org.freedesktop.DBus.Mock", "EmitSignal", "sssav", manager, "PrepareForSleep",
                  "b", "1", "b", sleeping ? "true" : "false"});
    }
};

TEST_F(MockedLogind, SleepIsAcknowledgedOnlyAfterASlowSlotAndTheInhibitorComesBackOnWake)
{
    startLogind();
    tvi::PowerChangeNotifier notifier;
    ASSERT_TRUE(notifier.enable());
    Json held = inhibitors();
    ASSERT_EQ(held.size(), 1u);
    EXPECT_EQ(held[0][0], "sleep");
    EXPECT_EQ(held[0][3], "delay");

    std::mutex mutex;
    std::vector<int> states;
    std::atomic<int> heldAtSlotEnd{-1};
    notifier.connect([&](std::shared_ptr<tvi::PowerChangeState> state) {
        if (*state == tvi::SleepRequested) {
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
            heldAtSlotEnd = static_cast<int>(inhibitors().size());
        }
        std::lock_guard<std::mutex> lock(mutex);
        states.push_back(*state);
    });
    testing_support::CaptureStream log(std::clog);
    auto running = std::async(std::launch::async, [&notifier] { notifier.runStandalone(); });

    prepareForSleep(true);
    EXPECT_TRUE(inhibitorsBecome(0)) << "the inhibitor was not released";
    EXPECT_EQ(heldAtSlotEnd, 1) << "released before the slot returned";
    prepareForSleep(false);
    EXPECT_TRUE(inhibitorsBecome(1)) << "no new inhibitor after the wake-up";

    for (int i = 0; i < 100; ++i) {
        std::lock_guard<std::mutex> lock(mutex);
        if (states.size() >= 2) {
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    EXPECT_TRUE(notifier.disable());
    ASSERT_EQ(running.wait_for(std::chrono::seconds(1)), std::future_status::ready);
    EXPECT_EQ(states, (std::vector<int>{2, 4}));
    EXPECT_EQ(testing_support::logMessages(log.text()),
              (std::vector<std::string>{"PowerChangeNotifier::SleepRequested", "PowerChangeNotifier::PoweredOn"}));
    EXPECT_TRUE(inhibitorsBecome(0)) << "disable leaves no inhibitor behind";
}

TEST_F(MockedLogind, StopEndsTheRunWithinASecond)
{
    startLogind();
    tvi::PowerChangeNotifier notifier;
    ASSERT_TRUE(notifier.enable());
    auto running = std::async(std::launch::async, [&notifier] { notifier.runStandalone(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    notifier.stop();
    EXPECT_EQ(running.wait_for(std::chrono::seconds(1)), std::future_status::ready);
}

TEST_F(MockedLogind, WithoutLogindEnableFailsWithItsLogLine)
{
    tvi::PowerChangeNotifier notifier;
    testing_support::CaptureStream log(std::clog);
    EXPECT_FALSE(notifier.enable());
    std::vector<std::string> messages = testing_support::logMessages(log.text());
    ASSERT_FALSE(messages.empty());
    EXPECT_EQ(messages.front(), "IORegisterForSystemPower failed");
}

TEST_F(MockedLogind, WatchCommandPrintsPowerLines)
{
    startLogind();
    testing_support::ChildProcess program({TVPOLICY_CLI, "watch", "--power", "--json"}, true);
    ASSERT_TRUE(inhibitorsBecome(1)) << "the program did not register";
    prepareForSleep(true);
    std::optional<std::string> line = program.readLine(std::chrono::seconds(5));
    ASSERT_TRUE(line);
    Json change = Json::parse(*line);
    EXPECT_EQ(change["kind"], "power");
    EXPECT_EQ(change["payload"], (Json{{"state", 2}, {"name", "SleepRequested"}}));
    EXPECT_EQ(program.signalAndWait(SIGTERM, std::chrono::seconds(3)), std::optional<int>(0));
}

}  // namespace
