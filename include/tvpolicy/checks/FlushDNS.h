#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/policy/Task.h>

/// The policy element FlushDNS (registered as "FlushDNSTask"): empties the operating system's
/// DNS resolver cache with the command the host offers for it (HostProbe::dnsFlushCommand). It
/// passes when a flush command was issued, whatever became of it, and fails when the host has
/// none. It takes no attributes.
class TVPOLICY_API FlushDNS : public Task {
public:
    static Task* create();

    void setAttribute(Attribute* attribute) override;
    TaskResponse* perform() override;
    /// "FlushDNS": the class name, not the registered name.
    std::string getType() override;

    /// Runs "/usr/bin/dscacheutil -flushcache"; its wait status, or 0 when it could not start.
    int flushDNSdscacheutil();
    /// Runs "/usr/bin/lookupd -flushcache"; its wait status, or 0 when it could not start.
    int flushDNSlookupd();

private:
    static bool dummy;
};
