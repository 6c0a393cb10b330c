#include <tvpolicy/host/NameServer.h>

#include <arpa/inet.h>

namespace tvpolicy {

std::optional<NameServer> NameServer::parse(const std::string& text)
{
    NameServer server;
    std::size_t colon = text.find(':');
    server.address = text.substr(0, colon);
    in_addr address{};
    if (::inet_pton(AF_INET, server.address.c_str(), &address) != 1) {
        return std::nullopt;
    }
    if (colon != std::string::npos) {
        std::string digits = text.substr(colon + 1);
        if (digits.empty() || digits.size() > 5 || digits.find_first_not_of("0123456789") != std::string::npos) {
            return std::nullopt;
        }
        unsigned long port = std::stoul(digits);
        if (port == 0 || port > 65535) {
            return std::nullopt;
        }
        server.port = static_cast<std::uint16_t>(port);
    }
    return server;
}

}  // namespace tvpolicy
