#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <tvpolicy/export.h>

namespace tvpolicy {

/// A name server that a DNS lookup asks instead of the system's: an IPv4 address and a port.
struct TVPOLICY_API NameServer {
    std::string address;
    std::uint16_t port = 53;

    /// "ADDR" or "ADDR:PORT", ADDR a dotted IPv4 address and PORT 1 to 65535; nothing for any
    /// other text.
    static std::optional<NameServer> parse(const std::string& text);
};

}  // namespace tvpolicy
