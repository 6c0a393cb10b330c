// Datagrams of a socket-diagnostics dump: every socket read takes a whole socket message, and
// ports fit in 16 bits.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "host/parse/SockDiag.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    auto batch = tvpolicy::parse::parseSockDiag(data, size);
    if (batch.sockets.size() > size / 88) {
        std::abort();
    }
    for (const auto& socket : batch.sockets) {
        if (socket.localPort > 65535 || socket.family > 255 || socket.state > 255) {
            std::abort();
        }
    }
    if (batch.error < 0) {
        std::abort();
    }
    return 0;
}
