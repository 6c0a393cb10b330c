#pragma once

#include <string>

#include <tvpolicy/export.h>
#include <tvpolicy/host/NetworkInterface.h>

namespace com::torvane::api {

/// The interface report of this host: the fragments of every qualifying interface, and of the
/// virtual-machine guests unless `mode` is exactly "NONE". No declaration, no enclosing element.
TVPOLICY_API std::string getNetworkInterfacesXML(std::string mode);
/// The fragments of the map's interfaces, concatenated in key order.
TVPOLICY_API std::string getNetworkInterfacesXML(const NetworkInterfaceMap& interfaces);
/// One interface as
/// <interface><mac>..</mac><ip>..</ip>..<ipv6>..</ipv6><desc>..</desc><medium>..</medium>
/// <name>..</name><suffix>..</suffix>[<essid>..</essid>][<bssid>..</bssid>]
/// <operstatus>UP|DOWN</operstatus>[<vm>..</vm>]</interface>
/// on one line, values as CDATA sections; "" for null and for interfaces without a MAC address.
TVPOLICY_API std::string getNetworkInterfaceXML(const NetworkInterface* interface);

}  // namespace com::torvane::api
