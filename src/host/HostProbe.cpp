#include <tvpolicy/host/HostProbe.h>

#include <tvpolicy/host/ForwardingHostProbe.h>

#include <algorithm>

#include "host/ProbeSlot.h"
#include "host/ProcessNames.h"
#include "host/ProcessScan.h"
#include "host/SnapshotTable.h"

namespace tvpolicy {

namespace {
using Slot = ProbeSlot<HostProbe, &systemHost>;
}  // namespace

HostProbe::~HostProbe() = default;

HostProbe::ApplicationListing HostProbe::applicationListing() const { return {}; }

namespace {

HostProbe::ProcessCounts countsOf(const std::vector<HostProbe::ProcessEntry>& table)
{
    HostProbe::ProcessCounts counts;
    counts.total = table.size();
    counts.withheld = static_cast<std::size_t>(std::count_if(
        table.begin(), table.end(), [](const HostProbe::ProcessEntry& p) { return p.executableWithheld; }));
    return counts;
}

bool holdsProcessNamed(const std::vector<HostProbe::ProcessEntry>& table, const std::string& name)
{
    return std::any_of(table.begin(), table.end(), [&](const HostProbe::ProcessEntry& p) {
        return p.executablePath && (name == p.shortName || host::isExecutableNamed(*p.executablePath, name));
    });
}

}  // namespace

HostProbe::ProcessCounts HostProbe::processCounts() const
{
    if (const auto* forward = dynamic_cast<const ForwardingHostProbe*>(this)) {
        return forward->inner().processCounts();
    }
    if (const auto* table = host::snapshotTable(*this)) {
        return countsOf(*table);
    }
    if (const auto* scan = dynamic_cast<const host::ProcessScan*>(this)) {
        return scan->scanCounts();
    }
    return countsOf(processTable());
}

bool HostProbe::runsProcessNamed(const std::string& name) const
{
    if (const auto* forward = dynamic_cast<const ForwardingHostProbe*>(this)) {
        return forward->inner().runsProcessNamed(name);
    }
    if (const auto* table = host::snapshotTable(*this)) {
        return holdsProcessNamed(*table, name);
    }
    if (const auto* scan = dynamic_cast<const host::ProcessScan*>(this)) {
        return scan->scanForName(name);
    }
    return holdsProcessNamed(processTable(), name);
}

HostProbe& currentHost() { return Slot::current(); }

ScopedHost::ScopedHost(HostProbe& probe) : previous_(Slot::swapIn(probe)) {}

ScopedHost::~ScopedHost() { Slot::restore(previous_); }

}  // namespace tvpolicy
