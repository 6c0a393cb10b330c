#include "host/parse/SockDiag.h"

#include <algorithm>
#include <climits>
#include <cstring>

namespace tvpolicy::parse {

namespace {

constexpr std::size_t headerSize = 16;
constexpr std::uint16_t sockDiagByFamily = 20;
constexpr std::uint16_t messageError = 2;
constexpr std::uint16_t messageDone = 3;
constexpr std::uint16_t flagRequest = 0x1;
constexpr std::uint16_t flagDump = 0x300;
// The family, state, timer and retransmission bytes, then the socket's identity (ports,
// addresses, interface, cookie), expiry, queues, uid and inode.
constexpr std::size_t socketMessageSize = 72;
constexpr std::size_t requestSize = 56;

template <typename T>
T read(const unsigned char* at)
{
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

template <typename T>
void write(std::vector<unsigned char>& out, std::size_t at, T value)
{
    std::memcpy(out.data() + at, &value, sizeof value);
}

}  // namespace

std::vector<unsigned char> sockDiagRequest(int family, int protocol, std::uint32_t states, std::uint32_t sequence)
{
    std::vector<unsigned char> message(headerSize + requestSize, 0);
    write<std::uint32_t>(message, 0, static_cast<std::uint32_t>(message.size()));
    write<std::uint16_t>(message, 4, sockDiagByFamily);
    write<std::uint16_t>(message, 6, flagRequest | flagDump);
    write<std::uint32_t>(message, 8, sequence);
    message[headerSize] = static_cast<unsigned char>(family);
    message[headerSize + 1] = static_cast<unsigned char>(protocol);
    write<std::uint32_t>(message, headerSize + 4, states);
    return message;
}

DiagBatch parseSockDiag(const unsigned char* data, std::size_t size)
{
    DiagBatch batch;
    std::size_t offset = 0;
    while (size - offset >= headerSize) {
        auto length = read<std::uint32_t>(data + offset);
        auto type = read<std::uint16_t>(data + offset + 4);
        if (length < headerSize || length > size - offset) {
            batch.malformed = true;
            return batch;
        }
        const unsigned char* body = data + offset + headerSize;
        std::size_t bodySize = length - headerSize;
        if (type == messageDone) {
            batch.done = true;
            return batch;
        }
        if (type == messageError) {
            if (bodySize < 4) {
                batch.malformed = true;
                return batch;
            }
            long long code = read<std::int32_t>(body);
            batch.error = static_cast<int>(std::min<long long>(code < 0 ? -code : code, INT_MAX));
            batch.done = true;
            return batch;
        }
        if (type == sockDiagByFamily) {
            if (bodySize < socketMessageSize) {
                batch.malformed = true;
                return batch;
            }
            DiagSocket socket;
            socket.family = body[0];
            socket.state = body[1];
            socket.localPort = static_cast<unsigned>(body[4]) << 8 | body[5];
            batch.sockets.push_back(socket);
        }
        std::size_t step = (static_cast<std::size_t>(length) + 3) & ~static_cast<std::size_t>(3);
        if (step > size - offset) {
            offset = size;
            break;
        }
        offset += step;
    }
    if (offset != size) {
        batch.malformed = true;
    }
    return batch;
}

}  // namespace tvpolicy::parse
