#pragma once

#include <tvpolicy/host/HostProbe.h>

namespace tvpolicy {

/// The host probe of Linux: reads /proc, /sys, /etc and the system's tools.
class LinuxHostProbe : public HostProbe {
public:
    std::string systemPath(const std::string& path) const override;
};

}  // namespace tvpolicy
