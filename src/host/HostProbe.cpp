#include <tvpolicy/host/HostProbe.h>

#include <atomic>

namespace tvpolicy {

namespace {

std::atomic<HostProbe*>& current()
{
    static std::atomic<HostProbe*> probe{nullptr};
    return probe;
}

}  // namespace

HostProbe::~HostProbe() = default;

HostProbe::ApplicationListing HostProbe::applicationListing() const { return {}; }

HostProbe& currentHost()
{
    HostProbe* probe = current().load(std::memory_order_acquire);
    return probe != nullptr ? *probe : systemHost();
}

ScopedHost::ScopedHost(HostProbe& probe) : previous_(current().exchange(&probe, std::memory_order_acq_rel)) {}

ScopedHost::~ScopedHost() { current().store(previous_, std::memory_order_release); }

}  // namespace tvpolicy
