#pragma once

#include <string>

#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy::host {

/// Process scans that a backend offers beside the whole table, reading of each process only what
/// the question needs. HostProbe's processCounts() and runsProcessNamed() use them when the
/// probe has them, and the whole table otherwise (a described host).
class ProcessScan {
public:
    /// How many processes there are and how many withhold their executable's path.
    virtual HostProbe::ProcessCounts scanCounts() const = 0;
    /// Whether a process runs by HostProbe::runsProcessNamed's rule.
    virtual bool scanForName(const std::string& name) const = 0;

protected:
    ProcessScan() = default;
    ~ProcessScan() = default;
    ProcessScan(const ProcessScan&) = default;
    ProcessScan& operator=(const ProcessScan&) = default;
};

}  // namespace tvpolicy::host
