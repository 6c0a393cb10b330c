#include "host/probe/darwin/DarwinRunLoopWaiter.h"

namespace tvpolicy::darwin {

namespace {

using Clock = std::chrono::steady_clock;

// What CFRunLoopRun itself takes as "no limit".
constexpr CFTimeInterval distantFuture = 1.0e10;

}  // namespace

RunLoopWaiter::RunLoopWaiter()
{
    CFRunLoopSourceContext context{};
    context.info = this;
    context.perform = &RunLoopWaiter::perform;
    stopSource_.reset(CFRunLoopSourceCreate(kCFAllocatorDefault, 0, &context));
}

RunLoopWaiter::~RunLoopWaiter()
{
    if (stopSource_) {
        CFRunLoopSourceInvalidate(stopSource_.get());
    }
}

EventProbe::Wake RunLoopWaiter::wait(CFRunLoopSourceRef source, CFStringRef mode, std::chrono::milliseconds timeout,
                                     const std::function<bool()>& ready)
{
    if (stopped_.load()) {
        return EventProbe::Wake::Stopped;
    }
    CFRunLoopRef loop = CFRunLoopGetCurrent();
    RunLoopSourceAttachment events(loop, source, mode);
    RunLoopSourceAttachment stopper(loop, stopSource_.get(), kCFRunLoopDefaultMode);
    {
        std::lock_guard<std::mutex> lock(mutex_);
        waiting_ = retained(loop);
    }
    struct Leave {
        RunLoopWaiter& waiter;
        ~Leave()
        {
            std::lock_guard<std::mutex> lock(waiter.mutex_);
            waiter.waiting_.reset();
        }
    } leave{*this};

    const bool limited = timeout.count() >= 0;
    const Clock::time_point deadline = limited ? Clock::now() + timeout : Clock::time_point::max();
    for (;;) {
        if (stopped_.load()) {
            return EventProbe::Wake::Stopped;
        }
        if (ready()) {
            // Take what is already queued behind it without waiting.
            CFRunLoopRunInMode(kCFRunLoopDefaultMode, 0.0, false);
            return EventProbe::Wake::Event;
        }
        CFTimeInterval seconds = distantFuture;
        if (limited) {
            std::chrono::duration<double> left = deadline - Clock::now();
            if (left.count() <= 0) {
                return EventProbe::Wake::TimedOut;
            }
            seconds = left.count();
        }
        if (CFRunLoopRunInMode(kCFRunLoopDefaultMode, seconds, true) == kCFRunLoopRunFinished) {
            return EventProbe::Wake::Failed;  // the sources are gone from the loop
        }
    }
}

void RunLoopWaiter::stop()
{
    stopped_.store(true);
    if (!stopSource_) {
        return;
    }
    CFRunLoopSourceSignal(stopSource_.get());
    std::lock_guard<std::mutex> lock(mutex_);
    if (waiting_) {
        CFRunLoopWakeUp(waiting_.get());
    }
}

}  // namespace tvpolicy::darwin
