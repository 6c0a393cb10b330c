#include <tvpolicy/host/EventProbe.h>

#include <atomic>

namespace tvpolicy {

namespace {

std::atomic<EventProbe*>& current()
{
    static std::atomic<EventProbe*> probe{nullptr};
    return probe;
}

}  // namespace

EventProbe::~EventProbe() = default;
EventProbe::AddressWatch::~AddressWatch() = default;
EventProbe::PowerWatch::~PowerWatch() = default;

EventProbe& currentEvents()
{
    EventProbe* probe = current().load(std::memory_order_acquire);
    return probe != nullptr ? *probe : systemEvents();
}

ScopedEvents::ScopedEvents(EventProbe& probe) : previous_(current().exchange(&probe, std::memory_order_acq_rel)) {}

ScopedEvents::~ScopedEvents() { current().store(previous_, std::memory_order_release); }

}  // namespace tvpolicy
