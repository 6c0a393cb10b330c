#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Texts of the network configuration (/sys/class/net attributes, resolv.conf) turned into plain
// values. Pure and OS-neutral.
namespace tvpolicy::parse {

/// The MAC address in "00:1B:63:AB:CD:EF" form from the text of a sysfs "address" attribute
/// ("00:1b:63:ab:cd:ef\n"): its first six octets, upper case. Empty when the text holds fewer
/// than six octets or is not a colon-separated hexadecimal address.
std::string sysfsMacAddress(const std::string& raw);

/// The MAC address in "00:1B:63:AB:CD:EF" form from a hardware address's bytes: its first six
/// octets. Empty when there are fewer than six (as sysfsMacAddress reads such an address).
std::string macAddressText(const unsigned char* octets, std::size_t count);

/// The domain and search list of a resolv.conf text. "domain" and "search" exclude each other
/// and the last one in the file wins, as the resolver reads them.
struct ResolverDomains {
    /// The local domain: the "domain" value, else the first search domain.
    std::string domain;
    /// The search list: the "search" domains, else the "domain" value alone.
    std::vector<std::string> search;
};
ResolverDomains resolvConfDomains(const std::string& text);

}  // namespace tvpolicy::parse
