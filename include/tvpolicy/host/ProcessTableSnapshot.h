#pragma once

#include <tvpolicy/export.h>

namespace tvpolicy {

/// For its lifetime, the process questions asked on this thread (HostProbe::processCounts()
/// and HostProbe::runsProcessNamed()) are answered from one reading of the asked probe's
/// process table, taken at the first question. One evaluation (a policy run, and the warnings
/// said before it) then reads the table once however many process checks it holds, and all of
/// them see the same table. Snapshots nest: the outermost one's reading serves until it ends.
/// Questions on other threads read afresh as before.
class TVPOLICY_API ProcessTableSnapshot {
public:
    ProcessTableSnapshot();
    ~ProcessTableSnapshot();
    ProcessTableSnapshot(const ProcessTableSnapshot&) = delete;
    ProcessTableSnapshot& operator=(const ProcessTableSnapshot&) = delete;

private:
    bool outermost_;
};

}  // namespace tvpolicy
