#pragma once

#include <string>

#include <tvpolicy/host/HostProbe.h>

#include "host/ProcessScan.h"

namespace tvpolicy {

/// The host probe of Linux: reads /proc, /sys and /etc, and runs the system's tools.
///
/// It reads raw texts only and leaves their parsing to the OS-neutral parsers of host/parse/.
/// The files are looked up below `root` (the real root unless a test gives a folder that is
/// laid out like one); system paths are never mapped, whatever the root.
class LinuxHostProbe : public HostProbe, public host::ProcessScan {
public:
    explicit LinuxHostProbe(std::string root = std::string());

    std::string systemPath(const std::string& path) const override;
    std::string osProductVersion() const override;
    std::string osProductName() const override;
    std::string nodeName() const override;
    std::string machineArchitecture() const override;
    HardwareIdentity hardwareIdentity() const override;
    std::vector<ProcessEntry> processTable() const override;
    /// Reads each process's executable link only (and, for a process without one, whether it
    /// still exists).
    ProcessCounts scanCounts() const override;
    /// Reads each process's executable link, then its short name only when the name could
    /// still match (the kernel keeps at most 15 characters); stops at the first match.
    bool scanForName(const std::string& name) const override;
    std::string dnsFlushCommand() const override;
    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    int runShellCommand(const std::string& command) override;
    void openURL(const std::string& url) override;
    Result<std::vector<unsigned char>> dnsQuery(const std::string& name, int type,
                                                const std::optional<NameServer>& server) const override;
    std::string dnsDefaultDomain() const override;
    /// The dpkg status database when there is one, else what rpm lists when it is installed.
    ApplicationListing applicationListing() const override;

private:
    /// Calls `visit(procFd, pid)` for each process folder under /proc until it returns false.
    template <typename Visit>
    void forEachProcess(Visit visit) const;

    std::string osReleaseValue(const std::string& name) const;
    std::optional<std::string> dmiAttribute(const char* name) const;

    std::string root_;
};

}  // namespace tvpolicy
