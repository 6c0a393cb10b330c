#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <tvpolicy/base/Result.h>
#include <tvpolicy/export.h>

namespace tvpolicy {

/// The event side of the host probe: subscriptions to the system's address and power events.
/// A backend only reports that something happened (and takes the acknowledgement the system
/// waits for); the change notifiers hold the rules and call it.
///
/// The current event probe is the real backend unless a ScopedEvents swaps in another (for
/// example a FakeEvents that delivers exactly the events a test queues).
class TVPOLICY_API EventProbe {
public:
    /// How a wait ended.
    enum class Wake {
        Event,     ///< events arrived
        Stopped,   ///< stop() was called (now or before)
        TimedOut,  ///< the time given passed without an event
        Failed     ///< the source went away (the connection or socket failed)
    };

    /// Messages of the system's power management, by the numbers the system's power
    /// notifications carry. Other numbers may arrive too.
    enum PowerMessage : std::uint32_t {
        canSystemSleep = 0xE0000270,      ///< may the system go to idle sleep?
        systemWillSleep = 0xE0000280,     ///< the system will sleep
        systemWillPowerOn = 0xE0000320,   ///< the system is about to power on
        systemHasPoweredOn = 0xE0000300,  ///< the system has powered on
    };

    /// One power notification: its message and the backend's reference to it, which
    /// PowerWatch::allow takes back.
    struct PowerEvent {
        std::uint32_t message = 0;
        std::uint64_t token = 0;
    };

    /// A subscription to IPv4 and IPv6 address changes, open until it is destroyed.
    class TVPOLICY_API AddressWatch {
    public:
        virtual ~AddressWatch();
        /// Waits until at least one address change has arrived (everything that arrived by then
        /// is taken, so a burst counts once), stop() is called, or `timeout` passes (a negative
        /// timeout waits without limit).
        virtual Wake wait(std::chrono::milliseconds timeout) = 0;
        /// Makes the running wait, and every later one, return Stopped. Safe from any thread.
        virtual void stop() = 0;
    };

    /// A registration for power notifications, open until it is destroyed.
    class TVPOLICY_API PowerWatch {
    public:
        virtual ~PowerWatch();
        /// Waits like AddressWatch::wait; on Event, `events` holds the notifications in order.
        virtual Wake wait(std::chrono::milliseconds timeout, std::vector<PowerEvent>& events) = 0;
        /// Tells the system that the change of `event` may go ahead (sleep is never vetoed).
        virtual void allow(const PowerEvent& event) = 0;
        /// As AddressWatch::stop.
        virtual void stop() = 0;
    };

    virtual ~EventProbe();

    /// Subscribes to address changes; null when the subscription could not be made.
    virtual std::unique_ptr<AddressWatch> watchAddresses() = 0;
    /// Registers for power notifications; a Failure saying why when that failed.
    virtual Result<std::unique_ptr<PowerWatch>> watchPower() = 0;
};

/// The event probe in use: the real backend unless a ScopedEvents is alive.
TVPOLICY_API EventProbe& currentEvents();

/// The real event backend of this operating system.
TVPOLICY_API EventProbe& systemEvents();

/// Makes `probe` the current event probe for its lifetime, then restores the previous one.
class TVPOLICY_API ScopedEvents {
public:
    explicit ScopedEvents(EventProbe& probe);
    ~ScopedEvents();
    ScopedEvents(const ScopedEvents&) = delete;
    ScopedEvents& operator=(const ScopedEvents&) = delete;

private:
    EventProbe* previous_;
};

}  // namespace tvpolicy
