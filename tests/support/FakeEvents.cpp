#include "support/FakeEvents.h"

#include <condition_variable>
#include <mutex>

namespace testing_support {

using tvpolicy::EventProbe;

struct FakeEvents::Queue {
    std::mutex mutex;
    std::condition_variable changed;
    int addressChanges = 0;
    std::vector<PowerEvent> power;
    std::uint64_t powerCount = 0;
    std::vector<std::uint64_t> allowed;
    int addressWatches = 0;
    int powerWatches = 0;
    bool endWhenDrained = false;

    // Waits until `ready` holds, the watch is stopped or the time passes; the lock is held on return.
    template <typename Ready>
    Wake waitFor(std::unique_lock<std::mutex>& lock, std::chrono::milliseconds timeout, const bool& stopped,
                 Ready ready)
    {
        auto done = [&] { return stopped || ready() || endWhenDrained; };
        if (timeout.count() < 0) {
            changed.wait(lock, done);
        } else if (!changed.wait_for(lock, timeout, done)) {
            return Wake::TimedOut;
        }
        if (stopped) {
            return Wake::Stopped;
        }
        return ready() ? Wake::Event : Wake::Failed;
    }
};

namespace {

// The stop flag of a watch, kept under the queue's lock.
class FakeStop {
public:
    explicit FakeStop(std::shared_ptr<FakeEvents::Queue> queue) : queue_(std::move(queue)) {}

    void stopWatch()
    {
        std::lock_guard<std::mutex> lock(queue_->mutex);
        stopped_ = true;
        queue_->changed.notify_all();
    }

protected:
    std::shared_ptr<FakeEvents::Queue> queue_;
    bool stopped_ = false;
};

class FakeAddressWatch : public EventProbe::AddressWatch, private FakeStop {
public:
    explicit FakeAddressWatch(std::shared_ptr<FakeEvents::Queue> queue) : FakeStop(std::move(queue)) {}

    EventProbe::Wake wait(std::chrono::milliseconds timeout) override
    {
        std::unique_lock<std::mutex> lock(queue_->mutex);
        EventProbe::Wake wake = queue_->waitFor(lock, timeout, stopped_, [this] { return queue_->addressChanges > 0; });
        if (wake == EventProbe::Wake::Event) {
            queue_->addressChanges = 0;
        }
        return wake;
    }

    void stop() override { stopWatch(); }
};

class FakePowerWatch : public EventProbe::PowerWatch, private FakeStop {
public:
    explicit FakePowerWatch(std::shared_ptr<FakeEvents::Queue> queue) : FakeStop(std::move(queue)) {}

    EventProbe::Wake wait(std::chrono::milliseconds timeout, std::vector<EventProbe::PowerEvent>& events) override
    {
        std::unique_lock<std::mutex> lock(queue_->mutex);
        EventProbe::Wake wake = queue_->waitFor(lock, timeout, stopped_, [this] { return !queue_->power.empty(); });
        if (wake == EventProbe::Wake::Event) {
            events.swap(queue_->power);
            queue_->power.clear();
        }
        return wake;
    }

    void allow(const EventProbe::PowerEvent& event) override
    {
        std::lock_guard<std::mutex> lock(queue_->mutex);
        queue_->allowed.push_back(event.token);
    }

    void stop() override { stopWatch(); }
};

}  // namespace

FakeEvents::FakeEvents() : queue_(std::make_shared<Queue>()) {}

FakeEvents::~FakeEvents() = default;

void FakeEvents::pushAddressChange()
{
    std::lock_guard<std::mutex> lock(queue_->mutex);
    ++queue_->addressChanges;
    queue_->changed.notify_all();
}

void FakeEvents::pushPowerMessage(std::uint32_t message)
{
    std::lock_guard<std::mutex> lock(queue_->mutex);
    queue_->power.push_back({message, ++queue_->powerCount});
    queue_->changed.notify_all();
}

std::vector<std::uint64_t> FakeEvents::allowed() const
{
    std::lock_guard<std::mutex> lock(queue_->mutex);
    return queue_->allowed;
}

int FakeEvents::addressWatchesOpened() const
{
    std::lock_guard<std::mutex> lock(queue_->mutex);
    return queue_->addressWatches;
}

int FakeEvents::powerWatchesOpened() const
{
    std::lock_guard<std::mutex> lock(queue_->mutex);
    return queue_->powerWatches;
}

std::unique_ptr<EventProbe::AddressWatch> FakeEvents::watchAddresses()
{
    if (addressRegistrationFails) {
        return nullptr;
    }
    std::lock_guard<std::mutex> lock(queue_->mutex);
    queue_->endWhenDrained = endWhenDrained;
    ++queue_->addressWatches;
    return std::make_unique<FakeAddressWatch>(queue_);
}

tvpolicy::Result<std::unique_ptr<EventProbe::PowerWatch>> FakeEvents::watchPower()
{
    if (!powerRegistrationError.empty()) {
        return tvpolicy::Failure{powerRegistrationError};
    }
    std::lock_guard<std::mutex> lock(queue_->mutex);
    queue_->endWhenDrained = endWhenDrained;
    ++queue_->powerWatches;
    return std::unique_ptr<PowerWatch>(std::make_unique<FakePowerWatch>(queue_));
}

}  // namespace testing_support
