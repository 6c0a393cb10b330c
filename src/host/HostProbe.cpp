#include <tvpolicy/host/HostProbe.h>

#include <tvpolicy/host/ForwardingHostProbe.h>

#include <algorithm>

#include "host/ProbeSlot.h"
#include "host/ProcessNames.h"
#include "host/ProcessScan.h"

namespace tvpolicy {

namespace {
using Slot = ProbeSlot<HostProbe, &systemHost>;
}  // namespace

HostProbe::~HostProbe() = default;

HostProbe::ApplicationListing HostProbe::applicationListing() const { return {}; }

HostProbe::ProcessCounts HostProbe::processCounts() const
{
    if (const auto* forward = dynamic_cast<const ForwardingHostProbe*>(this)) {
        return forward->inner().processCounts();
    }
    if (const auto* scan = dynamic_cast<const host::ProcessScan*>(this)) {
        return scan->scanCounts();
    }
    std::vector<ProcessEntry> table = processTable();
    ProcessCounts counts;
    counts.total = table.size();
    counts.withheld = static_cast<std::size_t>(
        std::count_if(table.begin(), table.end(), [](const ProcessEntry& p) { return p.executableWithheld; }));
    return counts;
}

bool HostProbe::runsProcessNamed(const std::string& name) const
{
    if (const auto* forward = dynamic_cast<const ForwardingHostProbe*>(this)) {
        return forward->inner().runsProcessNamed(name);
    }
    if (const auto* scan = dynamic_cast<const host::ProcessScan*>(this)) {
        return scan->scanForName(name);
    }
    std::vector<ProcessEntry> table = processTable();
    return std::any_of(table.begin(), table.end(), [&](const ProcessEntry& p) {
        return p.executablePath && (name == p.shortName || host::isExecutableNamed(*p.executablePath, name));
    });
}

HostProbe& currentHost() { return Slot::current(); }

ScopedHost::ScopedHost(HostProbe& probe) : previous_(Slot::swapIn(probe)) {}

ScopedHost::~ScopedHost() { Slot::restore(previous_); }

}  // namespace tvpolicy
