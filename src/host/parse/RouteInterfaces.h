#pragma once

#include <functional>
#include <string>
#include <vector>

#include <tvpolicy/host/NetworkProbe.h>

#include "host/parse/RouteDump.h"

namespace tvpolicy::parse {

/// Tells whether the interface of this name is a Wi-Fi interface: the one fact of the medium
/// that the dumps do not hold.
using WirelessTest = std::function<bool(const std::string& name)>;

/// The interface address list of a link and an address dump, in the order and shape the C
/// library's getifaddrs gives it:
/// - one entry per link, in the dump's order, named by its link, of the family Link when the
///   link has a hardware address (a hardware candidate when the link is of Ethernet type) and
///   Other when it has none;
/// - then one entry per address whose link is in the dump, in the dump's order, named by its
///   label when it has one (an IPv4 alias "eth0:1"), else by its link, with its link's flags,
///   the IPv4 or IPv6 address as text, or the family Other and no text for other families.
/// Each entry carries the hardware and link state of the interface named as the entry is:
/// the MAC address (the first six bytes of the hardware address), the medium ("Wireless" when
/// `wireless` says so, "Wired" for an Ethernet type, else empty) and the link, active when the
/// carrier is on (lower up) and the operational state is up or unknown. A name that is no
/// link's (a label) has no hardware, and its link state is the error ENOENT, as for an
/// interface that is gone. `wireless` is asked once per link, about links only.
std::vector<NetworkProbe::AddressEntry> routeInterfaceEntries(const RouteDump& dump, const WirelessTest& wireless);

/// How many addresses of `dump` belong to no link of it (their link came or went between the
/// two dumps): such addresses are left out of the list.
std::size_t strayRouteAddresses(const RouteDump& dump);

}  // namespace tvpolicy::parse
