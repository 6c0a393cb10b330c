#include "host/probe/darwin/DarwinPowerWatch.h"

#include <cstdint>

#include <IOKit/IOMessage.h>

namespace tvpolicy::darwin {

static_assert(kIOMessageCanSystemSleep == EventProbe::canSystemSleep, "can-system-sleep message");
static_assert(kIOMessageSystemWillSleep == EventProbe::systemWillSleep, "system-will-sleep message");
static_assert(kIOMessageSystemWillPowerOn == EventProbe::systemWillPowerOn, "will-power-on message");
static_assert(kIOMessageSystemHasPoweredOn == EventProbe::systemHasPoweredOn, "has-powered-on message");

Result<void> DarwinPowerWatch::open()
{
    if (!waiter_.valid()) {
        return Failure{"cannot create a run-loop source"};
    }
    if (!connection_.open(this, &DarwinPowerWatch::callback)) {
        return Failure{"the root power domain refused the registration"};
    }
    return {};
}

EventProbe::Wake DarwinPowerWatch::wait(std::chrono::milliseconds timeout, std::vector<EventProbe::PowerEvent>& events)
{
    EventProbe::Wake wake =
        waiter_.wait(connection_.runLoopSource(), kCFRunLoopCommonModes, timeout, [this] { return !pending_.empty(); });
    if (wake == EventProbe::Wake::Event) {
        events.swap(pending_);
        pending_.clear();
    }
    return wake;
}

void DarwinPowerWatch::allow(const EventProbe::PowerEvent& event)
{
    // Only the sleep requests wait for an answer; sleep is never vetoed.
    if (event.message == EventProbe::canSystemSleep || event.message == EventProbe::systemWillSleep) {
        IOAllowPowerChange(connection_.rootPort(), static_cast<long>(event.token));
    }
}

void DarwinPowerWatch::stop() { waiter_.stop(); }

void DarwinPowerWatch::callback(void* context, io_service_t, natural_t message, void* argument)
{
    // The argument of a power message is its notification identifier, which the answer names.
    auto* self = static_cast<DarwinPowerWatch*>(context);
    EventProbe::PowerEvent event{static_cast<std::uint32_t>(message),
                                 static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(argument))};
    try {
        self->pending_.push_back(event);
    } catch (...) {
        // Nothing crosses the run loop's C frames; a request that cannot be handed over is
        // answered here rather than keeping the system awake until it gives up waiting.
        self->allow(event);
    }
}

}  // namespace tvpolicy::darwin
