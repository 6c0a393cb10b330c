#pragma once

#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>

#include <tvpolicy/base/Signal.h>
#include <tvpolicy/export.h>
#include <tvpolicy/host/EventProbe.h>

namespace tvpolicy {
class StopLatch;
}

namespace tvi {

/// The power states that the power change notifier reports, as the integers of its payload.
enum PowerChangeState : int {
    IdleSleepRequested = 1,  ///< the system asks whether it may go to idle sleep
    SleepRequested = 2,      ///< the system will sleep
    PoweringOn = 3,          ///< the system is about to power on
    PoweredOn = 4,           ///< the system has powered on
};

/// Tells the agent that the system is about to sleep or has woken. Each notification writes
/// the state's log line ("PowerChangeNotifier::SleepRequested" ...) and fires the signal with
/// the state; for states 1 and 2 the system is then told that it may go ahead, after the slots
/// have returned and whether or not one failed. Sleep is never vetoed; a slot that blocks
/// delays it. Other notifications are ignored and not answered.
///
/// On Linux the notifications come from systemd-logind: PrepareForSleep(true) is state 2 and
/// PrepareForSleep(false) state 4 (states 1 and 3 have no event there). The notifier holds a
/// delay inhibitor for sleep while enabled and answers by releasing it, taking a new one after
/// the system has woken.
class TVPOLICY_API PowerChangeNotifier : public com::torvane::util::Signal<PowerChangeState> {
public:
    using PowerState = PowerChangeState;

    PowerChangeNotifier();
    ~PowerChangeNotifier();
    PowerChangeNotifier(const PowerChangeNotifier&) = delete;
    PowerChangeNotifier& operator=(const PowerChangeNotifier&) = delete;

    /// Registers for power notifications; false, with the log line "IORegisterForSystemPower
    /// failed", when that fails (logind cannot be reached). True when already enabled.
    bool enable();
    /// Deregisters, ending a runStandalone running on another thread first; true when the
    /// notifier was enabled. Not from a slot (use stop() there).
    bool disable();
    /// Handles notifications on this thread while the notifier is enabled: returns at once when
    /// it is not, and otherwise when disable() or stop() is called or the source goes away.
    void runStandalone();
    /// Makes a running runStandalone return within a second, and every later one return at
    /// once until the notifier is disabled and enabled again. Safe from any thread, including
    /// from a slot.
    void stop();

    /// True on this platform.
    static bool supported();

    /// Handles one notification as described above, answering it through `watch`.
    void dispatch(const tvpolicy::EventProbe::PowerEvent& event, tvpolicy::EventProbe::PowerWatch& watch);

private:
    std::mutex mutex_;
    std::condition_variable idle_;
    bool running_ = false;
    std::unique_ptr<tvpolicy::EventProbe::PowerWatch> watch_;
    std::unique_ptr<tvpolicy::StopLatch> stop_;
};

}  // namespace tvi
