// The posture facts macOS has an interface for: kernel parameters through sysctl and file
// ownership through stat. Service units, socket diagnostics, nftables and device-mapper are
// Linux's; those questions get the base class's "not available on this system".
#include <cerrno>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <sys/sysctl.h>
#include <sys/types.h>

#include <tvpolicy/host/HostProbe.h>
#include <tvpolicy/host/PostureProbe.h>

#include "host/probe/PosixFiles.h"

namespace tvpolicy {

namespace {

class DarwinPostureProbe : public PostureProbe {
public:
    Fact<std::string> kernelParameter(const std::string& name) const override
    {
        std::size_t size = 0;
        if (::sysctlbyname(name.c_str(), nullptr, &size, nullptr, 0) != 0) {
            return Fact<std::string>(Failure{errno == ENOENT ? "no such parameter" : std::strerror(errno)});
        }
        std::vector<char> value(size + 1, '\0');
        if (::sysctlbyname(name.c_str(), value.data(), &size, nullptr, 0) != 0) {
            return Fact<std::string>(Failure{std::strerror(errno)});
        }
        // Numbers come as 4 or 8 bytes in the host's order, texts with their terminating NUL.
        if (size == sizeof(std::int32_t) && value[size - 1] != '\0') {
            std::int32_t number = 0;
            std::memcpy(&number, value.data(), sizeof number);
            return Fact<std::string>(std::to_string(number) + "\n");
        }
        if (size == sizeof(std::int64_t) && value[size - 1] != '\0') {
            std::int64_t number = 0;
            std::memcpy(&number, value.data(), sizeof number);
            return Fact<std::string>(std::to_string(number) + "\n");
        }
        return Fact<std::string>(std::string(value.data()) + "\n");
    }

    Fact<FileStatus> fileStatus(const std::string& path) const override
    {
        return probe::statFile(currentHost().systemPath(path));
    }
};

}  // namespace

PostureProbe& systemPosture()
{
    static DarwinPostureProbe probe;
    return probe;
}

}  // namespace tvpolicy
