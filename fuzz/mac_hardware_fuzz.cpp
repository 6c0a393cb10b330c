// The numbers of the macOS I/O registry and power management: medium types, address bytes and
// power messages, all taken from the input as the registry hands them out.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "host/parse/MacHardware.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace tvpolicy::parse;
    std::vector<std::uint32_t> types(size / 4);
    if (!types.empty()) {
        std::memcpy(types.data(), data, types.size() * 4);
    }
    mediumFromTypes(types);
    std::string mac = macFromBytes(std::vector<unsigned char>(data, data + size));
    if (mac.size() != (size >= 6 ? 17U : 0U)) {
        std::abort();
    }
    for (std::uint32_t message : types) {
        auto event = powerEventForMessage(message);
        if (event && (event->state < 1 || event->state > 4)) {
            std::abort();
        }
    }
    return 0;
}
