#include "host/parse/NetlinkMessages.h"

#include <cstdint>
#include <cstring>

namespace tvpolicy::parse {

namespace {

std::size_t aligned(std::size_t length) { return (length + 3) & ~static_cast<std::size_t>(3); }

}  // namespace

NetlinkSummary summarizeNetlink(const unsigned char* data, std::size_t size)
{
    NetlinkSummary summary;
    std::size_t offset = 0;
    while (size - offset >= netlinkHeaderSize) {
        std::uint32_t length = 0;
        std::uint16_t type = 0;
        std::memcpy(&length, data + offset, sizeof length);
        std::memcpy(&type, data + offset + sizeof length, sizeof type);
        if (length < netlinkHeaderSize || length > size - offset) {
            summary.malformed = true;
            return summary;
        }
        if (type == netlinkNewAddress || type == netlinkDeletedAddress) {
            ++summary.addressChanges;
        }
        std::size_t step = aligned(length);
        if (step > size - offset) {
            break;
        }
        offset += step;
    }
    return summary;
}

}  // namespace tvpolicy::parse
