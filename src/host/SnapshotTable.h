#pragma once

#include <vector>

#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy::host {

/// The process table of `probe` as the ProcessTableSnapshot alive on this thread read it (read
/// now when this is its first question of `probe`); null when no snapshot is alive.
const std::vector<HostProbe::ProcessEntry>* snapshotTable(const HostProbe& probe);

}  // namespace tvpolicy::host
