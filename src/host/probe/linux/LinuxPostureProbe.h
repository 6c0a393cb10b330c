#pragma once

#include <tvpolicy/host/PostureProbe.h>

namespace tvpolicy {

/// The posture probe of Linux: systemd over D-Bus, socket diagnostics over netlink, the
/// packet filter through libnftables (loaded when first needed; `nft -j` when it cannot be),
/// and /proc and /sys through the current host's system paths.
class LinuxPostureProbe : public PostureProbe {
public:
    Fact<UnitState> unitState(const std::string& unit) const override;
    Fact<std::vector<ListeningSocket>> listeningSockets(const std::string& protocol) const override;
    Fact<std::vector<FilterChain>> packetFilter() const override;
    Fact<std::string> mountTable() const override;
    Fact<BlockDevice> blockDevice(const std::string& majorMinor) const override;
    Fact<std::string> kernelParameter(const std::string& name) const override;
    Fact<FileStatus> fileStatus(const std::string& path) const override;
};

}  // namespace tvpolicy
