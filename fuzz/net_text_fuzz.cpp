// Texts of the network configuration: a sysfs "address" attribute, a resolv.conf and a name
// server given as "address[:port]".
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include <tvpolicy/host/NameServer.h>

#include "host/parse/NetText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::string text(reinterpret_cast<const char*>(data), size);
    std::string mac = tvpolicy::parse::sysfsMacAddress(text);
    if (!mac.empty() && mac.size() != 17) {
        std::abort();  // six octets or nothing
    }
    auto domains = tvpolicy::parse::resolvConfDomains(text);
    if (domains.domain != (domains.search.empty() ? std::string() : domains.search.front())) {
        std::abort();  // "domain" is a search list of one; else the first search domain is local
    }
    if (auto server = tvpolicy::NameServer::parse(text)) {
        // Written back the way it was read, it reads the same.
        std::string written = server->address + ":" + std::to_string(server->port);
        auto again = tvpolicy::NameServer::parse(written);
        if (!again || again->address != server->address || again->port != server->port || server->port == 0) {
            std::abort();
        }
    }
    return 0;
}
