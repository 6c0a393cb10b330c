#pragma once

#include <optional>
#include <string>
#include <vector>

#include <tvpolicy/export.h>
#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy {

/// A probe that answers every question by asking another one. A subclass overrides only what
/// it changes (how commands run, say) and keeps the rest of the host as `inner` sees it.
/// processCounts() and runsProcessNamed() are the inner probe's too, read by its own process
/// scans, so they do not ask a subclass's processTable().
class TVPOLICY_API ForwardingHostProbe : public HostProbe {
public:
    explicit ForwardingHostProbe(HostProbe& inner) : inner_(inner) {}

    /// The probe asked.
    HostProbe& inner() const { return inner_; }

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

private:
    HostProbe& inner_;
};

}  // namespace tvpolicy
