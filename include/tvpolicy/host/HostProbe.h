#pragma once

#include <memory>
#include <string>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// Everything the library learns from, or asks of, the operating system goes through a host
/// probe. The checks and documents hold the rules; a probe only reads raw values.
///
/// The current probe is the real backend of this operating system unless a ScopedHost swaps in
/// another: an embedder may describe a host of its own (for example to evaluate a policy
/// against another machine's facts), and tests describe exact hosts with FakeHost.
class TVPOLICY_API HostProbe {
public:
    virtual ~HostProbe();

    /// Where a fixed system path (such as /Library/Receipts/) is found on this host. The real
    /// backend answers the path itself; a described host may map it into a folder of its own.
    virtual std::string systemPath(const std::string& path) const = 0;
};

/// The probe in use on this thread's process: the real backend unless a ScopedHost is alive.
TVPOLICY_API HostProbe& currentHost();

/// The real backend of this operating system.
TVPOLICY_API HostProbe& systemHost();

/// Makes `probe` the current probe for its lifetime, then restores the previous one. Guards
/// nest; swapping is not meant to race with checks running on other threads.
class TVPOLICY_API ScopedHost {
public:
    explicit ScopedHost(HostProbe& probe);
    ~ScopedHost();
    ScopedHost(const ScopedHost&) = delete;
    ScopedHost& operator=(const ScopedHost&) = delete;

private:
    HostProbe* previous_;
};

}  // namespace tvpolicy
