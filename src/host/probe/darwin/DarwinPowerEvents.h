#pragma once

#include <functional>

#include <IOKit/IOKitLib.h>
#include <IOKit/pwr_mgt/IOPMLib.h>

#include "host/parse/MacHardware.h"

namespace tvpolicy::darwin {

/// The system's power notifications (IORegisterForSystemPower) on the run loop of the thread
/// that enables them. Each known message is handed to the handler; the two sleep requests are
/// then allowed (IOAllowPowerChange) whatever the handler did, so sleep is never vetoed.
/// Ready to back the events interface's power notifier.
class DarwinPowerEvents {
public:
    using Handler = std::function<void(const parse::PowerEvent&)>;

    explicit DarwinPowerEvents(Handler handler);
    ~DarwinPowerEvents();
    DarwinPowerEvents(const DarwinPowerEvents&) = delete;
    DarwinPowerEvents& operator=(const DarwinPowerEvents&) = delete;

    /// Registers and adds the source to the current run loop in the common modes; false when
    /// registration failed.
    bool enable();
    /// Removes the source and deregisters; true when deregistered.
    bool disable();
    /// Runs the current thread's run loop (returns only when it is stopped or has no source).
    static void runStandalone();

private:
    static void callback(void* context, io_service_t service, natural_t message, void* argument);

    Handler handler_;
    io_connect_t rootPort_ = IO_OBJECT_NULL;
    IONotificationPortRef notifyPort_ = nullptr;
    io_object_t notifier_ = IO_OBJECT_NULL;
};

}  // namespace tvpolicy::darwin
