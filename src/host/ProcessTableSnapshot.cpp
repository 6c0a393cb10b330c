#include <tvpolicy/host/ProcessTableSnapshot.h>

#include <deque>
#include <utility>
#include <vector>

#include "host/SnapshotTable.h"

namespace tvpolicy {

namespace {

// The readings of the outermost snapshot alive on this thread, one per probe asked; none when
// no snapshot is alive.
struct Readings {
    bool active = false;
    std::deque<std::pair<const HostProbe*, std::vector<HostProbe::ProcessEntry>>> tables;  // kept in place
};

Readings& readings()
{
    thread_local Readings kept;
    return kept;
}

}  // namespace

ProcessTableSnapshot::ProcessTableSnapshot() : outermost_(!readings().active) { readings().active = true; }

ProcessTableSnapshot::~ProcessTableSnapshot()
{
    if (outermost_) {
        readings() = Readings();
    }
}

namespace host {

const std::vector<HostProbe::ProcessEntry>* snapshotTable(const HostProbe& probe)
{
    Readings& kept = readings();
    if (!kept.active) {
        return nullptr;
    }
    for (const auto& [asked, table] : kept.tables) {
        if (asked == &probe) {
            return &table;
        }
    }
    kept.tables.emplace_back(&probe, probe.processTable());
    return &kept.tables.back().second;
}

}  // namespace host

}  // namespace tvpolicy
