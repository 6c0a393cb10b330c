#include "host/parse/MacHardware.h"

#include <cstdio>

namespace tvpolicy::parse {

std::string mediumFromTypes(const std::vector<std::uint32_t>& types)
{
    for (std::uint32_t type : types) {
        if (type & mediumTypeIEEE80211) {
            return "Wireless";
        }
        if (type & mediumTypeEthernet) {
            return "Wired";
        }
    }
    return std::string();
}

std::string macFromBytes(const std::vector<unsigned char>& bytes)
{
    if (bytes.size() < 6) {
        return std::string();
    }
    char text[18];
    std::snprintf(text, sizeof text, "%02X:%02X:%02X:%02X:%02X:%02X", bytes[0], bytes[1], bytes[2], bytes[3], bytes[4],
                  bytes[5]);
    return text;
}

}  // namespace tvpolicy::parse
