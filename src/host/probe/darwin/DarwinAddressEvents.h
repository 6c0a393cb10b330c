#pragma once

#include <functional>

namespace tvpolicy::darwin {

/// Watches the dynamic store's IPv4 and IPv6 entities of every network service on the current
/// thread's run loop, calling `changed` on each notification. Ready to back the events
/// interface's address notifier.
class DarwinAddressEvents {
public:
    explicit DarwinAddressEvents(std::function<void()> changed);

    /// Sets up the watch and runs the run loop: until it is stopped, or with `once` one timed
    /// run of at most 1000 s that returns after the first handled source. 0 when the watch ran;
    /// else the store's last error, 1001 when that is 0, or -1 when the patterns could not be
    /// made (the loop then does not run).
    int run(bool once);

private:
    std::function<void()> changed_;
};

}  // namespace tvpolicy::darwin
