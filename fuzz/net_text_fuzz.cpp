// Texts of the network configuration: a sysfs "address" attribute and a resolv.conf.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

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
    return 0;
}
