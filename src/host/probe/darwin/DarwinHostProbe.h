#pragma once

#include <sys/sysctl.h>

#include <cstddef>
#include <string>

#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy {

/// The host probe of macOS: sw_vers, the kernel's process table, the I/O registry, the DNS
/// service and the system's tools. Built on macOS only; elsewhere it is type-checked against
/// the kept header tree (TVPOLICY_DARWIN_CHECK).
class DarwinHostProbe : public HostProbe {
public:
    std::string systemPath(const std::string& path) const override;
    std::string osProductVersion() const override;
    std::string osProductName() const override;
    std::string nodeName() const override;
    std::string machineArchitecture() const override;
    HardwareIdentity hardwareIdentity() const override;
    std::vector<ProcessEntry> processTable() const override;
    std::string dnsFlushCommand() const override;
    std::string commandOutput(const std::string& command, unsigned long bufferSize) override;
    int runShellCommand(const std::string& command) override;
    void openURL(const std::string& url) override;
    Result<std::vector<unsigned char>> dnsQuery(const std::string& name, int type,
                                                const std::optional<NameServer>& server) const override;
    std::string dnsDefaultDomain() const override;
    ApplicationListing applicationListing() const override;
};

namespace darwin {

/// The whole process table of the kernel ({CTL_KERN, KERN_PROC, KERN_PROC_ALL}) in a new
/// array that the caller frees with free(); 0 on success, else the error number with a null
/// list. A table that grows between the size query and the fetch is fetched again.
int GetBSDProcessList(kinfo_proc** list, std::size_t* count);

}  // namespace darwin

}  // namespace tvpolicy
