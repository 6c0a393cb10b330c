#pragma once

#include <memory>
#include <string>
#include <vector>

#include <tvpolicy/base/Signal.h>
#include <tvpolicy/export.h>

namespace tvpolicy {
class StopLatch;
}

namespace com::torvane::api {

/// Tells the agent that the set of interface hardware addresses changed, by polling the
/// interface inventory (NetworkInterface::getInstances) every period. The list it reports is
/// the inventory's keys: the MAC addresses, and the name of an interface without one.
///
/// Two lists differ when their lengths differ or when an address of the new list is missing
/// from the old one; order does not matter. Slots run on the thread that runs the notifier,
/// under the signal's mutex; an exception thrown by a slot is logged and does not end the watch.
class TVPOLICY_API MACChangeNotifier : public com::torvane::util::Signal<std::vector<std::string>> {
public:
    /// A period of 2 seconds or less is raised to 3.
    explicit MACChangeNotifier(int periodSeconds);
    ~MACChangeNotifier();
    MACChangeNotifier(const MACChangeNotifier&) = delete;
    MACChangeNotifier& operator=(const MACChangeNotifier&) = delete;

    /// The polling period in seconds.
    int getPeriod() const { return period_; }

    /// Reports every change: runOnce, the log line "MAC Changed", then the signal with the new
    /// list; again and again until stop() is called.
    void run();
    /// Takes the current list, then polls until the list differs from it and returns the new
    /// list. When stopped first, returns the list as last read (unchanged).
    std::vector<std::string> runOnce();
    /// Makes a running run or runOnce return within a second, and every later one return at
    /// once: a stopped notifier stays stopped. Safe from any thread, including from a slot.
    void stop();
    /// True once stop() has been called.
    bool stopped() const;

    /// The change rule: true when `after` has another length than `before`, or holds an address
    /// that `before` does not.
    static bool listsDiffer(const std::vector<std::string>& before, const std::vector<std::string>& after);

    /// True on this platform.
    static bool supported();

private:
    int period_;
    std::unique_ptr<tvpolicy::StopLatch> stop_;
};

}  // namespace com::torvane::api
