#include "host/parse/RouteDump.h"

#include <cstring>

#include "host/parse/NetlinkMessages.h"

namespace tvpolicy::parse {

namespace {

constexpr std::size_t maxNameBytes = 16;      // IFNAMSIZ, the terminating NUL included
constexpr std::size_t maxHardwareBytes = 32;  // MAX_ADDR_LEN

std::size_t aligned(std::size_t length) { return (length + 3) & ~static_cast<std::size_t>(3); }

template <typename T>
T read(const unsigned char* data, std::size_t offset)
{
    T value;
    std::memcpy(&value, data + offset, sizeof value);
    return value;
}

// Calls visit(type, payload, size) for each attribute that fits in `size` bytes.
template <typename Visit>
void walkAttributes(const unsigned char* data, std::size_t size, Visit visit)
{
    std::size_t offset = 0;
    while (size - offset >= route::attributeHeaderSize) {
        auto length = read<std::uint16_t>(data, offset);
        auto type = read<std::uint16_t>(data, offset + 2);
        if (length < route::attributeHeaderSize || length > size - offset) {
            return;
        }
        visit(type, data + offset + route::attributeHeaderSize, length - route::attributeHeaderSize);
        std::size_t step = aligned(length);
        if (step > size - offset) {
            return;
        }
        offset += step;
    }
}

// A text attribute up to its first NUL.
std::string text(const unsigned char* data, std::size_t size)
{
    const auto* begin = reinterpret_cast<const char*>(data);
    return std::string(begin, strnlen(begin, size));
}

bool readLink(const NetlinkMessage& message, RouteDump& dump)
{
    if (message.payloadSize < route::linkHeaderSize) {
        return false;
    }
    RouteLink link;
    link.type = read<std::uint16_t>(message.payload, 2);
    link.index = read<std::int32_t>(message.payload, 4);
    link.flags = read<std::uint32_t>(message.payload, 8);
    walkAttributes(message.payload + route::linkHeaderSize, message.payloadSize - route::linkHeaderSize,
                   [&link](std::uint16_t type, const unsigned char* data, std::size_t size) {
                       if (type == route::linkName && size <= maxNameBytes) {
                           link.name = text(data, size);
                       } else if (type == route::linkAddress && size <= maxHardwareBytes) {
                           link.hardwareAddress.assign(reinterpret_cast<const char*>(data), size);
                           link.hasHardwareAddress = true;
                       } else if (type == route::linkOperState && size == 1) {
                           link.operState = data[0];
                       }
                   });
    dump.links.push_back(std::move(link));
    return true;
}

bool readAddress(const NetlinkMessage& message, RouteDump& dump)
{
    if (message.payloadSize < route::addressHeaderSize) {
        return false;
    }
    RouteAddress address;
    address.family = message.payload[0];
    address.index = read<std::int32_t>(message.payload, 4);
    std::size_t expected = address.family == route::familyIPv4 ? 4 : address.family == route::familyIPv6 ? 16 : 0;
    bool local = false;
    walkAttributes(message.payload + route::addressHeaderSize, message.payloadSize - route::addressHeaderSize,
                   [&](std::uint16_t type, const unsigned char* data, std::size_t size) {
                       bool fits = expected == 0 || size == expected;
                       if ((type == route::addressLocal || (type == route::addressAddress && !local)) && fits) {
                           address.address.assign(reinterpret_cast<const char*>(data), size);
                           address.hasAddress = true;
                           local = local || type == route::addressLocal;
                       } else if (type == route::addressLabel && size <= maxNameBytes) {
                           address.label = text(data, size);
                           address.hasLabel = true;
                       }
                   });
    dump.addresses.push_back(std::move(address));
    return true;
}

// The error number of an error or end message: the negated number that opens its payload.
bool readStatus(const NetlinkMessage& message, RouteDump& dump)
{
    if (message.payloadSize < sizeof(std::int32_t)) {
        return message.type == route::done;  // an end without a status is a plain end
    }
    auto status = read<std::int32_t>(message.payload, 0);
    if (status < 0) {
        // The most negative number has no positive counterpart: any error will do.
        dump.error = status == INT32_MIN ? 1 : -status;
    }
    return true;
}

}  // namespace

void readRouteDump(const unsigned char* data, std::size_t size, std::uint32_t sequence, RouteDump& dump)
{
    if (dump.finished()) {
        return;
    }
    bool whole = walkNetlink(data, size, [&](const NetlinkMessage& message) {
        if (message.sequence != sequence) {
            return true;
        }
        if ((message.flags & route::interrupted) != 0) {
            dump.interrupted = true;
        }
        bool ok = true;
        switch (message.type) {
        case route::newLink: ok = readLink(message, dump); break;
        case route::newAddress: ok = readAddress(message, dump); break;
        case route::error:
        case route::done:
            ok = readStatus(message, dump);
            dump.done = dump.done || message.type == route::done;
            break;
        default: break;
        }
        dump.malformed = !ok;
        return !dump.finished();
    });
    dump.malformed = dump.malformed || !whole;
}

std::vector<unsigned char> routeDumpRequest(std::uint16_t type, std::uint32_t sequence)
{
    bool link = type == route::getLink;
    // The header, the family-wide interface or address header, and for links the attribute
    // that leaves the statistics out.
    std::size_t size = netlinkHeaderSize + (link ? route::linkHeaderSize + 8 : route::addressHeaderSize);
    std::vector<unsigned char> message(size, 0);
    auto put = [&message](std::size_t offset, auto value) {
        std::memcpy(message.data() + offset, &value, sizeof value);
    };
    put(0, static_cast<std::uint32_t>(size));
    put(4, type);
    put(6, static_cast<std::uint16_t>(route::request | route::dump));
    put(8, sequence);
    if (link) {
        std::size_t attribute = netlinkHeaderSize + route::linkHeaderSize;
        put(attribute, static_cast<std::uint16_t>(8));
        put(attribute + 2, route::linkExtMask);
        put(attribute + 4, route::skipStats);
    }
    return message;
}

}  // namespace tvpolicy::parse
