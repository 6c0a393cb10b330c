#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <tvpolicy/host/EventProbe.h>

#include "host/probe/darwin/DarwinHandles.h"
#include "host/probe/darwin/DarwinRunLoopWaiter.h"

namespace tvpolicy::darwin {

/// The system's sleep and wake notifications (IORegisterForSystemPower). The notification
/// port's source sits on the run loop of the waiting thread in the common modes while a wait
/// runs; every message that arrives is handed over with its notification identifier as the
/// token, and allow() answers the two sleep requests with IOAllowPowerChange.
class DarwinPowerWatch : public EventProbe::PowerWatch {
public:
    /// Registers; false, with `error` set, when the system refused.
    Result<void> open();

    EventProbe::Wake wait(std::chrono::milliseconds timeout, std::vector<EventProbe::PowerEvent>& events) override;
    void allow(const EventProbe::PowerEvent& event) override;
    void stop() override;

private:
    static void callback(void* context, io_service_t service, natural_t message, void* argument);

    SystemPowerConnection connection_;
    RunLoopWaiter waiter_;
    // Filled by the callback, which runs on the waiting thread inside the wait.
    std::vector<EventProbe::PowerEvent> pending_;
};

}  // namespace tvpolicy::darwin
