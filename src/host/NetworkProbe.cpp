#include <tvpolicy/host/NetworkProbe.h>

#include "host/ProbeSlot.h"

namespace tvpolicy {

namespace {
using Slot = ProbeSlot<NetworkProbe, &systemNetwork>;
}  // namespace

NetworkProbe::~NetworkProbe() = default;

bool NetworkProbe::renewAddressAuthorized(const std::string& name, const void*) { return renewAddress(name); }

NetworkProbe& currentNetwork() { return Slot::current(); }

ScopedNetwork::ScopedNetwork(NetworkProbe& probe) : previous_(Slot::swapIn(probe)) {}

ScopedNetwork::~ScopedNetwork() { Slot::restore(previous_); }

}  // namespace tvpolicy
