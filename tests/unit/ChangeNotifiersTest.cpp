// The notifiers' rules against described sources: the period floor and change rule of the MAC
// notifier, the IP notifier's log line, payload and end conditions, the power notifier's
// states, log lines and acknowledgements, and stop() from other threads.
#include <tvpolicy/host/IPChangeNotifier.h>
#include <tvpolicy/host/MACChangeNotifier.h>
#include <tvpolicy/host/PowerChangeNotifier.h>
#include "support/FakeEvents.h"
#include "support/FakeNetwork.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <future>
#include <stdexcept>
#include <thread>

#include "support/CaptureStream.h"

namespace {

using com::torvane::api::IPChangeNotifier;
using com::torvane::api::MACChangeNotifier;
using testing_support::CaptureStream;
using testing_support::FakeEvents;
using testing_support::logMessages;
using tvpolicy::EventProbe;
using tvpolicy::NetworkProbe;
using Strings = std::vector<std::string>;

constexpr unsigned upRunning = 0x41;

NetworkProbe::AddressEntry linkEntry(const std::string& name)
{
    return {name, upRunning, NetworkProbe::Family::Link, "", true};
}

// A network whose interface list is read from a script, one inventory after another (the last
// one stays).
class ScriptedNetwork : public testing_support::FakeNetwork {
public:
    explicit ScriptedNetwork(std::vector<Strings> script) : script_(std::move(script))
    {
        for (const Strings& names : script_) {
            for (const std::string& name : names) {
                hardware[name] = {"02:00:00:00:00:" + name, "Wired"};
            }
        }
    }

    std::optional<std::vector<AddressEntry>> interfaceAddresses() const override
    {
        const Strings& names = script_[std::min(reads_++, script_.size() - 1)];
        std::vector<AddressEntry> entries;
        for (const std::string& name : names) {
            entries.push_back(linkEntry(name));
        }
        return entries;
    }

    std::size_t reads() const { return reads_; }

private:
    std::vector<Strings> script_;
    mutable std::size_t reads_ = 0;
};

template <typename Work>
bool endsWithinASecond(Work work, const std::function<void()>& stop)
{
    auto done = std::async(std::launch::async, work);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    stop();
    return done.wait_for(std::chrono::seconds(1)) == std::future_status::ready;
}

TEST(MACChangeNotifier, PeriodsOfTwoSecondsOrLessAreRaisedToThree)
{
    for (auto [given, used] : std::vector<std::pair<int, int>>{{-4, 3}, {0, 3}, {1, 3}, {2, 3}, {3, 3}, {10, 10}}) {
        EXPECT_EQ(MACChangeNotifier(given).getPeriod(), used) << given;
    }
}

TEST(MACChangeNotifier, ChangeRuleIgnoresOrder)
{
    struct Case {
        Strings before;
        Strings after;
        bool differs;
    };
    for (const Case& c : std::vector<Case>{
             {{"A", "B"}, {"B", "A"}, false},
             {{"A", "B"}, {"A", "B", "C"}, true},
             {{"A", "B", "C"}, {"A", "B"}, true},
             {{"A", "B"}, {"A", "C"}, true},
             {{"A"}, {}, true},
             {{}, {}, false},
             {{"A", "A", "B"}, {"B", "A", "A"}, false},
         }) {
        EXPECT_EQ(MACChangeNotifier::listsDiffer(c.before, c.after), c.differs)
            << testing::PrintToString(c.before) << " -> " << testing::PrintToString(c.after);
    }
}

TEST(MACChangeNotifier, RunReportsTheNewKeysOnceWithItsLogLine)
{
    ScriptedNetwork network({{"a1"}, {"a1", "b2"}});
    tvpolicy::ScopedNetwork scoped(network);
    MACChangeNotifier notifier(3);
    std::vector<Strings> fired;
    notifier.connect([&](std::shared_ptr<Strings> keys) {
        fired.push_back(*keys);
        notifier.stop();
    });
    CaptureStream log(std::clog);
    notifier.run();

    EXPECT_EQ(fired, (std::vector<Strings>{{"02:00:00:00:00:a1", "02:00:00:00:00:b2"}}));
    Strings messages = logMessages(log.text());
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "MAC Changed"), 1);
    EXPECT_EQ(network.reads(), 2u) << "no new inventory is taken once stopped";
}

TEST(MACChangeNotifier, StopEndsAPollingRunFromAnotherThread)
{
    ScriptedNetwork network({{"a1"}});
    tvpolicy::ScopedNetwork scoped(network);
    MACChangeNotifier notifier(60);
    int fired = 0;
    notifier.connect([&](std::shared_ptr<Strings>) { ++fired; });
    EXPECT_TRUE(endsWithinASecond([&] { notifier.run(); }, [&] { notifier.stop(); }));
    EXPECT_EQ(fired, 0);
    EXPECT_TRUE(notifier.stopped());
    EXPECT_EQ(notifier.runOnce(), Strings{"02:00:00:00:00:a1"}) << "a stopped runOnce gives the list unchanged";
}

class IPNotifierTest : public testing::Test {
protected:
    IPNotifierTest() : scopedNetwork(network), scopedEvents(events)
    {
        network.addresses = std::vector<NetworkProbe::AddressEntry>{
            linkEntry("eth0"),
            {"eth0", upRunning, NetworkProbe::Family::IPv4, "10.0.0.5", false},
            {"eth0", upRunning, NetworkProbe::Family::IPv6, "fd00::5", false},
            {"lo", 0x49, NetworkProbe::Family::IPv4, "127.0.0.1", false},
        };
    }

    testing_support::FakeNetwork network;
    FakeEvents events;
    tvpolicy::ScopedNetwork scopedNetwork;
    tvpolicy::ScopedEvents scopedEvents;
    IPChangeNotifier notifier;
    std::vector<Strings> fired;
};

TEST_F(IPNotifierTest, EachChangeLogsAndFiresEveryAddress)
{
    notifier.connect([this](std::shared_ptr<Strings> list) { fired.push_back(*list); });
    events.endWhenDrained = true;
    events.pushAddressChange();
    CaptureStream log(std::clog);
    notifier.run();

    EXPECT_EQ(fired, (std::vector<Strings>{{"10.0.0.5", "fd00::5", "127.0.0.1"}}));
    EXPECT_EQ(logMessages(log.text()), Strings{"IP Changed"});
}

TEST_F(IPNotifierTest, RunOnceHandlesOneChangeAndReturnsNothing)
{
    notifier.connect([this](std::shared_ptr<Strings> list) { fired.push_back(*list); });
    events.pushAddressChange();
    EXPECT_TRUE(notifier.runOnce().empty());
    EXPECT_EQ(fired.size(), 1u);
}

TEST_F(IPNotifierTest, FailedRegistrationEndsRunSilently)
{
    notifier.connect([this](std::shared_ptr<Strings> list) { fired.push_back(*list); });
    events.addressRegistrationFails = true;
    events.pushAddressChange();
    CaptureStream log(std::clog);
    notifier.run();
    EXPECT_TRUE(fired.empty());
    EXPECT_EQ(log.text(), "");
}

TEST_F(IPNotifierTest, SlotFailureIsLoggedAndTheWatchGoesOn)
{
    notifier.connect([this](std::shared_ptr<Strings> list) {
        fired.push_back(*list);
        if (fired.size() == 1) {
            events.pushAddressChange();
            throw std::runtime_error("agent busy");
        }
    });
    events.endWhenDrained = true;
    events.pushAddressChange();
    events.pushAddressChange();  // queued together with the first: one change
    CaptureStream log(std::clog);
    notifier.run();
    EXPECT_EQ(fired.size(), 2u);
    EXPECT_EQ(logMessages(log.text()),
              (Strings{"IP Changed", "IPChangeNotifier: a slot failed: agent busy", "IP Changed"}));
}

TEST_F(IPNotifierTest, StopEndsARunningWatchAndLaterRuns)
{
    EXPECT_TRUE(endsWithinASecond([this] { notifier.run(); }, [this] { notifier.stop(); }));
    events.pushAddressChange();
    notifier.connect([this](std::shared_ptr<Strings> list) { fired.push_back(*list); });
    notifier.run();
    EXPECT_TRUE(fired.empty()) << "a stopped notifier stays stopped";
}

class PowerNotifierTest : public testing::Test {
protected:
    PowerNotifierTest() : scopedEvents(events) { events.endWhenDrained = true; }

    FakeEvents events;
    tvpolicy::ScopedEvents scopedEvents;
    tvi::PowerChangeNotifier notifier;
};

TEST_F(PowerNotifierTest, MessagesBecomeStatesLogLinesAndAcknowledgements)
{
    // Tokens count the messages from 1; 0xE0000010 is a message the notifier does not know.
    for (std::uint32_t message :
         std::vector<std::uint32_t>{EventProbe::canSystemSleep, EventProbe::systemWillSleep,
                                    EventProbe::systemWillPowerOn, EventProbe::systemHasPoweredOn, 0xE0000010}) {
        events.pushPowerMessage(message);
    }
    std::vector<int> states;
    std::vector<std::size_t> answeredBeforeSlot;
    notifier.connect([&](std::shared_ptr<tvi::PowerChangeState> state) {
        states.push_back(*state);
        answeredBeforeSlot.push_back(events.allowed().size());
    });
    ASSERT_TRUE(notifier.enable());
    CaptureStream log(std::clog);
    notifier.runStandalone();

    EXPECT_EQ(states, (std::vector<int>{1, 2, 3, 4}));
    EXPECT_EQ(answeredBeforeSlot, (std::vector<std::size_t>{0, 1, 2, 2})) << "each answer comes after its slots";
    EXPECT_EQ(events.allowed(), (std::vector<std::uint64_t>{1, 2}));
    EXPECT_EQ(logMessages(log.text()),
              (Strings{"PowerChangeNotifier::IdleSleepRequested", "PowerChangeNotifier::SleepRequested",
                       "PowerChangeNotifier::PoweringOn", "PowerChangeNotifier::PoweredOn"}));
}

TEST_F(PowerNotifierTest, SleepIsAllowedWithoutSlotsAndAfterAFailingSlot)
{
    events.pushPowerMessage(EventProbe::systemWillSleep);
    ASSERT_TRUE(notifier.enable());
    notifier.runStandalone();
    EXPECT_EQ(events.allowed(), std::vector<std::uint64_t>{1});

    ASSERT_TRUE(notifier.disable());
    notifier.connect([](std::shared_ptr<tvi::PowerChangeState>) { throw std::runtime_error("no"); });
    events.pushPowerMessage(EventProbe::canSystemSleep);
    ASSERT_TRUE(notifier.enable());
    notifier.runStandalone();
    EXPECT_EQ(events.allowed(), (std::vector<std::uint64_t>{1, 2}));
}

TEST_F(PowerNotifierTest, FailedRegistrationLogsItsLine)
{
    events.powerRegistrationError = "no logind";
    CaptureStream log(std::clog);
    EXPECT_FALSE(notifier.enable());
    EXPECT_EQ(logMessages(log.text()), (Strings{"IORegisterForSystemPower failed", "PowerChangeNotifier: no logind"}));
    notifier.runStandalone();  // nothing registered: returns at once
    EXPECT_FALSE(notifier.disable());
}

TEST_F(PowerNotifierTest, DisableAndStopEndARunFromAnotherThread)
{
    events.endWhenDrained = false;
    ASSERT_TRUE(notifier.enable());
    EXPECT_TRUE(endsWithinASecond([this] { notifier.runStandalone(); }, [this] { EXPECT_TRUE(notifier.disable()); }));
    EXPECT_FALSE(notifier.disable());

    ASSERT_TRUE(notifier.enable());
    EXPECT_TRUE(endsWithinASecond([this] { notifier.runStandalone(); }, [this] { notifier.stop(); }));
    EXPECT_EQ(events.powerWatchesOpened(), 2);
}

}  // namespace
