// The Wi-Fi 802.1X profile.
#include <string>

#include <tvpolicy/agent/WifiConfigurationProfile.h>

#include "FuzzSupport.h"
#include "ReaderBuffers.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::silenceLogs();
    fuzz::reuseReaderBuffers();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    com::torvane::WifiConfigurationProfile::parse(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
