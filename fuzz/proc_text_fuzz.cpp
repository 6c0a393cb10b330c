// The texts of /proc and /sys: command names, executable link targets and sysfs attributes.
#include <cstddef>
#include <cstdint>
#include <string>

#include "host/parse/ProcText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string raw(reinterpret_cast<const char*>(data), size);
    tvpolicy::parse::procCommName(raw);
    tvpolicy::parse::procExeTarget(raw);
    tvpolicy::parse::sysfsValue(raw);
    return 0;
}
