#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

namespace tvpolicy {

/// The stop request of a long-running watcher, shared between the thread that runs it and the
/// threads that may end it. Once stopped it stays stopped until reset.
class StopLatch {
public:
    /// Sets the latch, calls the attached wake-up and ends every sleepUntil.
    void stop()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stopped_ = true;
        if (wake_) {
            wake_();
        }
        sleepers_.notify_all();
    }

    bool stopped() const
    {
        std::lock_guard<std::mutex> lock(mutex_);
        return stopped_;
    }

    void reset()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        stopped_ = false;
    }

    /// While attached, stop() calls `wake` (which must be safe from any thread). False, and
    /// nothing attached, when the latch is already set.
    bool attach(std::function<void()> wake)
    {
        std::lock_guard<std::mutex> lock(mutex_);
        if (stopped_) {
            return false;
        }
        wake_ = std::move(wake);
        return true;
    }

    void detach()
    {
        std::lock_guard<std::mutex> lock(mutex_);
        wake_ = nullptr;
    }

    /// Sleeps until `deadline` on the universal-time clock, or until stopped; true when stopped.
    bool sleepUntil(std::chrono::system_clock::time_point deadline)
    {
        std::unique_lock<std::mutex> lock(mutex_);
        return sleepers_.wait_until(lock, deadline, [this] { return stopped_; });
    }

private:
    mutable std::mutex mutex_;
    std::condition_variable sleepers_;
    bool stopped_ = false;
    std::function<void()> wake_;
};

/// Attaches a wake-up to a latch for the length of a scope.
class StopAttachment {
public:
    StopAttachment(StopLatch& latch, std::function<void()> wake)
        : latch_(latch),
          attached_(latch.attach(std::move(wake)))
    {
    }
    ~StopAttachment()
    {
        if (attached_) {
            latch_.detach();
        }
    }
    StopAttachment(const StopAttachment&) = delete;
    StopAttachment& operator=(const StopAttachment&) = delete;

    /// False when the latch was already set: the watcher should not start.
    bool attached() const { return attached_; }

private:
    StopLatch& latch_;
    bool attached_;
};

}  // namespace tvpolicy
