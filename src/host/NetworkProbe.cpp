#include <tvpolicy/host/NetworkProbe.h>

#include <atomic>

namespace tvpolicy {

namespace {

std::atomic<NetworkProbe*>& current()
{
    static std::atomic<NetworkProbe*> probe{nullptr};
    return probe;
}

}  // namespace

NetworkProbe::~NetworkProbe() = default;

bool NetworkProbe::renewAddressAuthorized(const std::string& name, const void*) { return renewAddress(name); }

NetworkProbe& currentNetwork()
{
    NetworkProbe* probe = current().load(std::memory_order_acquire);
    return probe != nullptr ? *probe : systemNetwork();
}

ScopedNetwork::ScopedNetwork(NetworkProbe& probe) : previous_(current().exchange(&probe, std::memory_order_acq_rel))
{
}

ScopedNetwork::~ScopedNetwork() { current().store(previous_, std::memory_order_release); }

}  // namespace tvpolicy
