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

/// Tells the agent that an IPv4 or IPv6 address of the host changed. Each change writes the
/// log line "IP Changed" and fires the signal with every address of every interface at that
/// moment (NetworkInterface::getIPAddresses); the changed addresses themselves are not
/// examined. A burst of changes that arrives while one is being handled is reported once more,
/// with the addresses as they are after the burst.
///
/// The events come from the current event probe (tvpolicy::currentEvents()): rtnetlink on Linux.
/// Slots run on the thread that runs the notifier, under the signal's mutex; an exception
/// thrown by a slot is logged and does not end the watch.
class TVPOLICY_API IPChangeNotifier : public com::torvane::util::Signal<std::vector<std::string>> {
public:
    IPChangeNotifier();
    ~IPChangeNotifier();
    IPChangeNotifier(const IPChangeNotifier&) = delete;
    IPChangeNotifier& operator=(const IPChangeNotifier&) = delete;

    /// run(false).
    void run();
    /// Subscribes to address changes and handles them on this thread: with false until stop()
    /// is called, with true until the first change has been handled or 1000 seconds have
    /// passed. When the subscription cannot be made it returns at once, silently.
    void run(bool once);
    /// run(true); returns an empty vector (the addresses reach the agent through the signal).
    std::vector<std::string> runOnce();
    /// Makes a running run return within a second, and every later run return at once: a
    /// stopped notifier stays stopped. Safe from any thread, including from a slot.
    void stop();
    /// True once stop() has been called.
    bool stopped() const;

    /// True on this platform.
    static bool supported();

private:
    std::unique_ptr<tvpolicy::StopLatch> stop_;
};

}  // namespace com::torvane::api
