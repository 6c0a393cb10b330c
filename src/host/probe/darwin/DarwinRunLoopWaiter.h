#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>

#include <CoreFoundation/CoreFoundation.h>

#include <tvpolicy/host/EventProbe.h>

#include "host/probe/darwin/DarwinHandles.h"

namespace tvpolicy::darwin {

/// The blocking wait of the darwin watches: runs the calling thread's run loop, with the
/// watch's source attached for the length of the wait, until the watch has something to hand
/// over, stop() is called (from any thread, before or during the wait), or the time passes.
///
/// stop() signals a source of its own on the waiting run loop rather than stopping the loop, so
/// a stop that comes just before the loop starts running is not lost.
class RunLoopWaiter {
public:
    RunLoopWaiter();
    ~RunLoopWaiter();
    RunLoopWaiter(const RunLoopWaiter&) = delete;
    RunLoopWaiter& operator=(const RunLoopWaiter&) = delete;

    /// False when the stop source could not be made.
    bool valid() const { return static_cast<bool>(stopSource_); }

    /// Waits with `source` in the run loop's `mode` until `ready` is true (checked after every
    /// handled source; what is queued by then is handled too, so a burst arrives at once). A
    /// negative timeout waits without limit.
    EventProbe::Wake wait(CFRunLoopSourceRef source, CFStringRef mode, std::chrono::milliseconds timeout,
                          const std::function<bool()>& ready);

    /// Ends the running wait and makes every later one end at once with Stopped.
    void stop();

private:
    static void perform(void*) {}

    std::atomic<bool> stopped_{false};
    std::mutex mutex_;
    CFHolder<CFRunLoopRef> waiting_;  // the run loop of the running wait, if any
    CFHolder<CFRunLoopSourceRef> stopSource_;
};

}  // namespace tvpolicy::darwin
