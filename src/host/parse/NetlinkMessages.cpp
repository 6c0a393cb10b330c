#include "host/parse/NetlinkMessages.h"

#include <cstdint>
#include <cstring>

namespace tvpolicy::parse {

namespace {

std::size_t aligned(std::size_t length) { return (length + 3) & ~static_cast<std::size_t>(3); }

}  // namespace

bool walkNetlink(const unsigned char* data, std::size_t size, const std::function<bool(const NetlinkMessage&)>& visit)
{
    std::size_t offset = 0;
    while (size - offset >= netlinkHeaderSize) {
        std::uint32_t length = 0;
        NetlinkMessage message;
        std::memcpy(&length, data + offset, sizeof length);
        std::memcpy(&message.type, data + offset + 4, sizeof message.type);
        std::memcpy(&message.flags, data + offset + 6, sizeof message.flags);
        std::memcpy(&message.sequence, data + offset + 8, sizeof message.sequence);
        if (length < netlinkHeaderSize || length > size - offset) {
            return false;
        }
        message.payload = data + offset + netlinkHeaderSize;
        message.payloadSize = length - netlinkHeaderSize;
        if (!visit(message)) {
            return true;
        }
        std::size_t step = aligned(length);
        if (step > size - offset) {
            break;
        }
        offset += step;
    }
    return true;
}

NetlinkSummary summarizeNetlink(const unsigned char* data, std::size_t size)
{
    NetlinkSummary summary;
    summary.malformed = !walkNetlink(data, size, [&summary](const NetlinkMessage& message) {
        if (message.type == netlinkNewAddress || message.type == netlinkDeletedAddress) {
            ++summary.addressChanges;
        }
        return true;
    });
    return summary;
}

}  // namespace tvpolicy::parse
