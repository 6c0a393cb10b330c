// The numbers of the macOS I/O registry: medium types and address bytes, taken from the input as
// the registry hands them out. (Power messages are dispatched by the power notifier, whose rule
// the unit tests cover message by message.)
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
    return 0;
}
