#include "host/probe/linux/LinuxHostProbe.h"

namespace tvpolicy {

std::string LinuxHostProbe::systemPath(const std::string& path) const { return path; }

HostProbe& systemHost()
{
    static LinuxHostProbe probe;
    return probe;
}

}  // namespace tvpolicy
