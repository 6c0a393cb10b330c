#include <tvpolicy/policy/Signal.h>

#include <gtest/gtest.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

using com::torvane::util::Signal;

TEST(Signal, FireWithoutSlotsDoesNothing)
{
    Signal<std::string> signal;
    auto payload = std::make_shared<std::string>("x");
    signal.fire(payload);
    EXPECT_EQ(payload.use_count(), 1);
}

TEST(Signal, SlotsShareOnePayloadInConnectionOrderAndMayKeepIt)
{
    Signal<std::string> signal;
    std::vector<std::pair<int, const std::string*>> calls;
    std::shared_ptr<std::string> kept;
    signal.connect([&](std::shared_ptr<std::string> p) { calls.emplace_back(1, p.get()); });
    signal.connect([&](std::shared_ptr<std::string> p) {
        calls.emplace_back(2, p.get());
        kept = p;
    });
    signal.connect([&](std::shared_ptr<std::string> p) { calls.emplace_back(3, p.get()); });

    const std::string* sent = nullptr;
    {
        auto payload = std::make_shared<std::string>("Firewall");
        sent = payload.get();
        signal.fire(payload);
    }
    ASSERT_EQ(calls.size(), 3u);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(calls[i].first, i + 1);
        EXPECT_EQ(calls[i].second, sent);
    }
    ASSERT_NE(kept, nullptr);
    EXPECT_EQ(*kept, "Firewall");
    EXPECT_EQ(kept.use_count(), 1);
}

TEST(Signal, ADisconnectedSlotIsNoLongerCalled)
{
    Signal<int> signal;
    int calls = 0;
    boost::signals2::connection connection = signal.connect([&](std::shared_ptr<int>) { ++calls; });
    signal.fire(std::make_shared<int>(1));
    connection.disconnect();
    signal.fire(std::make_shared<int>(2));
    EXPECT_EQ(calls, 1);
}

TEST(Signal, ASlotsExceptionLeavesFireWithTheMutexReleased)
{
    Signal<int> signal;
    int later = 0;
    signal.connect([](std::shared_ptr<int>) { throw std::runtime_error("slot failed"); });
    signal.connect([&](std::shared_ptr<int>) { ++later; });
    EXPECT_THROW(signal.fire(std::make_shared<int>(1)), std::runtime_error);
    EXPECT_EQ(later, 0);
    // The mutex was released: connecting and firing again neither deadlocks nor throws lock_error.
    signal.connect([&](std::shared_ptr<int>) { ++later; });
    EXPECT_THROW(signal.fire(std::make_shared<int>(2)), std::runtime_error);
}

TEST(Signal, ConnectWaitsWhileSlotsRun)
{
    Signal<int> signal;
    std::atomic<bool> slotRunning{false};
    std::atomic<bool> release{false};
    std::atomic<bool> connected{false};
    std::vector<int> order;
    signal.connect([&](std::shared_ptr<int>) {
        slotRunning = true;
        while (!release) {
            std::this_thread::yield();
        }
        order.push_back(1);
    });
    std::thread firing([&] { signal.fire(std::make_shared<int>(0)); });
    while (!slotRunning) {
        std::this_thread::yield();
    }
    std::thread connecting([&] {
        signal.connect([&](std::shared_ptr<int>) { order.push_back(2); });
        connected = true;
    });
    // The connector is blocked on the mutex for as long as the slot runs.
    for (int i = 0; i < 1000; ++i) {
        std::this_thread::yield();
    }
    EXPECT_FALSE(connected);
    release = true;
    firing.join();
    connecting.join();
    EXPECT_TRUE(connected);
    EXPECT_EQ(order, std::vector<int>{1});  // the late slot was not part of the running firing
}

}  // namespace
