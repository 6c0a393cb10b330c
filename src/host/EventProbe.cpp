#include <tvpolicy/host/EventProbe.h>

#include "host/ProbeSlot.h"

namespace tvpolicy {

namespace {
using Slot = ProbeSlot<EventProbe, &systemEvents>;
}  // namespace

EventProbe::~EventProbe() = default;
EventProbe::AddressWatch::~AddressWatch() = default;
EventProbe::PowerWatch::~PowerWatch() = default;

EventProbe& currentEvents() { return Slot::current(); }

ScopedEvents::ScopedEvents(EventProbe& probe) : previous_(Slot::swapIn(probe)) {}

ScopedEvents::~ScopedEvents() { Slot::restore(previous_); }

}  // namespace tvpolicy
