#pragma once

#include <cstdint>
#include <string>
#include <vector>

// The numbers that the macOS I/O registry hands out, turned into the values the library
// reports. Pure and OS-neutral, so the rules are tested everywhere; the darwin probe checks at
// compile time that the system's constants are these.
namespace tvpolicy::parse {

constexpr std::uint32_t mediumTypeIEEE80211 = 0x80;  ///< the 802.11 media-type bit
constexpr std::uint32_t mediumTypeEthernet = 0x20;   ///< the Ethernet media-type bit

/// The medium of a network controller from the "Type" numbers of its medium dictionary, in
/// the dictionary's order: the first type with the 802.11 bit gives "Wireless", the first with
/// the Ethernet bit "Wired" (whichever comes first); none gives an empty medium.
std::string mediumFromTypes(const std::vector<std::uint32_t>& types);

/// The MAC address "00:1B:63:AB:CD:EF" from the first six bytes of the registry's address
/// data; empty when there are fewer than six.
std::string macFromBytes(const std::vector<unsigned char>& bytes);

}  // namespace tvpolicy::parse
