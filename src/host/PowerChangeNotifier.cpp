#include <tvpolicy/host/PowerChangeNotifier.h>

#include <iostream>
#include <string>
#include <vector>

#include <tvpolicy/base/Timestamp.h>

#include "base/StopLatch.h"
#include "host/NotifierSlots.h"

namespace tvi {

using tvpolicy::EventProbe;

namespace {

struct StateOfMessage {
    std::uint32_t message;
    PowerChangeState state;
    const char* logLine;
    bool answered;
};

constexpr StateOfMessage states[] = {
    {EventProbe::canSystemSleep, IdleSleepRequested, "PowerChangeNotifier::IdleSleepRequested", true},
    {EventProbe::systemWillSleep, SleepRequested, "PowerChangeNotifier::SleepRequested", true},
    {EventProbe::systemWillPowerOn, PoweringOn, "PowerChangeNotifier::PoweringOn", false},
    {EventProbe::systemHasPoweredOn, PoweredOn, "PowerChangeNotifier::PoweredOn", false},
};

}  // namespace

PowerChangeNotifier::PowerChangeNotifier() : stop_(std::make_unique<tvpolicy::StopLatch>()) {}

PowerChangeNotifier::~PowerChangeNotifier() { disable(); }

bool PowerChangeNotifier::supported() { return true; }

bool PowerChangeNotifier::enable()
{
    std::lock_guard<std::mutex> lock(mutex_);
    if (watch_) {
        return true;
    }
    auto watch = tvpolicy::currentEvents().watchPower();
    if (!watch) {
        tslog(std::clog) << "IORegisterForSystemPower failed" << std::endl;
        if (!watch.error().empty()) {
            tslog(std::clog) << "PowerChangeNotifier: " << watch.error() << std::endl;
        }
        return false;
    }
    watch_ = std::move(watch).value();
    stop_->reset();
    return true;
}

bool PowerChangeNotifier::disable()
{
    std::unique_lock<std::mutex> lock(mutex_);
    if (!watch_) {
        return false;
    }
    watch_->stop();
    idle_.wait(lock, [this] { return !running_; });
    watch_.reset();
    return true;
}

void PowerChangeNotifier::stop() { stop_->stop(); }

void PowerChangeNotifier::runStandalone()
{
    EventProbe::PowerWatch* watch = nullptr;
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (!watch_ || running_) {
            return;
        }
        watch = watch_.get();
        running_ = true;
    }
    {
        tvpolicy::StopAttachment attachment(*stop_, [watch] { watch->stop(); });
        std::vector<EventProbe::PowerEvent> events;
        while (attachment.attached()) {
            events.clear();
            if (watch->wait(std::chrono::milliseconds(-1), events) != EventProbe::Wake::Event) {
                break;
            }
            for (const EventProbe::PowerEvent& event : events) {
                dispatch(event, *watch);
            }
        }
    }
    std::lock_guard<std::mutex> lock(mutex_);
    running_ = false;
    idle_.notify_all();
}

void PowerChangeNotifier::dispatch(const EventProbe::PowerEvent& event, EventProbe::PowerWatch& watch)
{
    for (const StateOfMessage& entry : states) {
        if (entry.message != event.message) {
            continue;
        }
        tslog(std::clog) << entry.logLine << std::endl;
        tvpolicy::fireGuarded(*this, std::make_shared<PowerChangeState>(entry.state), "PowerChangeNotifier");
        if (entry.answered) {
            watch.allow(event);
        }
        return;
    }
}

}  // namespace tvi
