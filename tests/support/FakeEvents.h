#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <tvpolicy/host/EventProbe.h>

namespace testing_support {

/// A described event source: the caller queues address changes and power messages, and every
/// acknowledgement is recorded. Used with ScopedEvents to run the notifiers against exact
/// events. Queuing and reading back are safe from any thread while a notifier runs.
class FakeEvents : public tvpolicy::EventProbe {
public:
    FakeEvents();
    ~FakeEvents() override;

    /// Makes watchAddresses fail.
    bool addressRegistrationFails = false;
    /// Makes watchPower fail with this error when not empty.
    std::string powerRegistrationError;
    /// With true, a wait that finds nothing queued reports Failed (the source went away), so a
    /// run ends once it has handled what was queued; with false it blocks until an event is
    /// queued or the watch is stopped.
    bool endWhenDrained = false;

    /// Queues one address change.
    void pushAddressChange();
    /// Queues one power message; its token is the count of power messages queued so far.
    void pushPowerMessage(std::uint32_t message);
    /// The tokens given back to PowerWatch::allow, in order.
    std::vector<std::uint64_t> allowed() const;
    /// How many watches of each kind were opened.
    int addressWatchesOpened() const;
    int powerWatchesOpened() const;

    std::unique_ptr<AddressWatch> watchAddresses() override;
    tvpolicy::Result<std::unique_ptr<PowerWatch>> watchPower() override;

    /// The state shared with the watches (internal).
    struct Queue;

private:
    std::shared_ptr<Queue> queue_;
};

}  // namespace testing_support
