#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <system_error>

#include <boost/signals2/signal.hpp>
#include <boost/thread/exceptions.hpp>

namespace com::torvane::util {

/// A typed, thread-safe notification channel. Each event's payload is allocated once and shared
/// by every receiver, who may keep it.
///
/// connect and fire are serialised by one mutex that is held while the slots run, so a slot is
/// never connected during a firing and slots run on the thread that fires. The mutex is not
/// recursive: a slot must not call connect or fire on the same signal. When the mutex cannot be
/// taken, both throw boost::lock_error and nothing is connected or delivered. An exception
/// thrown by a slot leaves fire after the mutex is released.
template <typename T>
class Signal {
public:
    using Payload = std::shared_ptr<T>;
    using Slot = std::function<void(Payload)>;

    /// Connects `slot` behind the slots already connected; they run in connection order.
    boost::signals2::connection connect(Slot slot)
    {
        std::unique_lock<std::mutex> lock = acquire();
        return signal_.connect(std::move(slot), boost::signals2::at_back);
    }

    /// Calls every connected slot with `payload`, in connection order, on this thread.
    void fire(Payload payload)
    {
        std::unique_lock<std::mutex> lock = acquire();
        signal_(payload);
    }

private:
    std::unique_lock<std::mutex> acquire()
    {
        try {
            return std::unique_lock<std::mutex>(mutex_);
        } catch (const std::system_error& failure) {
            throw boost::lock_error(failure.code().value());
        }
    }

    std::mutex mutex_;
    boost::signals2::signal<void(Payload)> signal_;
};

}  // namespace com::torvane::util
