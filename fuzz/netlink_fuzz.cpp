// Datagrams of a routing netlink socket: the messages a kernel (or anyone who can write to the
// socket) sends when an interface address changes. Every counted message takes a whole header.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "host/parse/NetlinkMessages.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto summary = tvpolicy::parse::summarizeNetlink(data, size);
    if (summary.addressChanges < 0 || static_cast<std::size_t>(summary.addressChanges) > size / 16) {
        std::abort();
    }
    return 0;
}
