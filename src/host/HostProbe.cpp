#include <tvpolicy/host/HostProbe.h>

#include "host/ProbeSlot.h"

namespace tvpolicy {

namespace {
using Slot = ProbeSlot<HostProbe, &systemHost>;
}  // namespace

HostProbe::~HostProbe() = default;

HostProbe::ApplicationListing HostProbe::applicationListing() const { return {}; }

HostProbe& currentHost() { return Slot::current(); }

ScopedHost::ScopedHost(HostProbe& probe) : previous_(Slot::swapIn(probe)) {}

ScopedHost::~ScopedHost() { Slot::restore(previous_); }

}  // namespace tvpolicy
